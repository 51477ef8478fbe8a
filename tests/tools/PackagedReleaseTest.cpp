// The release that the viewer is shipped with.
#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"
#include "tools/openmap-release/packing/Description.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

namespace vasker {
namespace {

const std::string& releaseFile() {
    static const std::string path = std::string(VASKER_RESOURCES) + "/OpenMap.json";
    return path;
}

/// The 64 digits behind the key in the bundle information.
std::string bundledDigest() {
    const std::string information =
        contentOf(std::string(VASKER_RESOURCES) + "/BundleInformation.json");
    const std::string key = "\"VaskerOpenMapSHA256\": \"";
    const std::size_t place = information.find(key);
    return place == std::string::npos ? "" : information.substr(place + key.size(), 64);
}

class PackagedRelease : public testing::Test {
  protected:
    PackagedRelease()
        : m_release(OpenMapRelease::decode(contentOf(releaseFile()), bundledDigest())),
          m_description(readDescription("canada-energy.toml", contentOf(VASKER_DESCRIPTION))) {}

    /// The source that was made of the table for `role`.
    [[nodiscard]] const OpenMapRelease::Source& source(TableRole role) const {
        const std::string& text = m_description.table(role)->source.modifications;
        const auto found =
            std::ranges::find_if(m_release.sources, [&](const OpenMapRelease::Source& source) {
                return source.modifications.starts_with(text);
            });
        if (found == m_release.sources.end()) {
            throw std::runtime_error("the release was packed with another description");
        }
        return *found;
    }

    /// The number behind `words` in the counts of a source's modifications; 0 where they are none.
    [[nodiscard]] std::ptrdiff_t told(TableRole role, const std::string& words) const {
        const std::string& text = source(role).modifications;
        const std::size_t place = text.find(words + ": ");
        if (place == std::string::npos) {
            return 0;
        }
        std::string digits = text.substr(place + words.size() + 2);
        digits.resize(digits.find_first_not_of("0123456789,"));
        std::erase(digits, ',');
        return std::stol(digits);
    }

    [[nodiscard]] std::ptrdiff_t recordsOf(TableRole role) const {
        return std::ranges::count(
            m_release.assets, source(role).id, &OpenMapRelease::Asset::sourceID);
    }

    /// How many facts with `label` a source reports.
    [[nodiscard]] std::ptrdiff_t factsOf(TableRole role, std::string_view label) const {
        std::ptrdiff_t count = 0;
        for (const OpenMapRelease::Asset& asset : m_release.assets) {
            count += std::ranges::count_if(asset.facts, [&](const OpenMapRelease::Fact& fact) {
                return fact.sourceID == source(role).id && fact.label.starts_with(label);
            });
        }
        return count;
    }

    OpenMapRelease m_release;
    Description m_description;
};

using enum TableRole;

TEST_F(PackagedRelease, PassesTheCheckWithTheBundledDigest) {
    const ToolOutcome outcome = runTool({"check", releaseFile(), "--sha256", bundledDigest()});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST_F(PackagedRelease, LeavesRoomForTheNextOne) {
    EXPECT_LT(contentOf(releaseFile()).size(), 13'000'000U);
}

TEST_F(PackagedRelease, SaysWhatItsDescriptionSays) {
    EXPECT_EQ(m_release.limitations, m_description.limitations);
    EXPECT_EQ(m_release.coverageName, m_description.coverageName);
    for (const TableRoleTraits& traits : tableRoles()) {
        if (traits.citation == TableRoleTraits::Citation::source) {
            const OpenMapRelease::Source& told = m_description.table(traits.role)->source;
            EXPECT_EQ(source(traits.role).attribution, told.attribution) << traits.key;
            EXPECT_EQ(source(traits.role).sourceURL, told.sourceURL) << traits.key;
        }
    }
}

TEST_F(PackagedRelease, HoldsTheRecordsThatItsSourcesTellOf) {
    for (const TableRole role :
         {npriFacilities, npriReports, oilPipelines, gasPipelines, terminals}) {
        EXPECT_EQ(recordsOf(role), told(role, "rows as records, taken")) << traitsOf(role).key;
        EXPECT_GT(recordsOf(role), 0);
    }
    EXPECT_EQ(recordsOf(ghgrpFacilities),
              told(ghgrpFacilities, "rows as records of their own, taken"));
}

TEST_F(PackagedRelease, HoldsTheFactsThatItsSourcesTellOf) {
    EXPECT_EQ(factsOf(npriReports, "Company in the report for "),
              told(npriReports, "companies that differ from the facility table's, taken"));
    EXPECT_EQ(factsOf(npriReports, "Name in the report for "),
              told(npriReports, "names that differ from the facility table's, taken"));
    EXPECT_EQ(factsOf(npriReportYears, "Industry code (NAICS)"),
              told(npriReportYears, "industry codes of records without one, taken"));
    EXPECT_EQ(factsOf(ghgrpTotals, "Total emissions"), told(ghgrpTotals, "totals, taken"));
    EXPECT_EQ(factsOf(npriLocations, "Location basis"),
              told(npriLocations, "positions of records, taken"));
    EXPECT_EQ(factsOf(npriFacilities, "Location basis"),
              told(npriFacilities, "records with this table's position, noted"));
    EXPECT_EQ(factsOf(npriReports, "Location basis"),
              told(npriReports, "records with this table's position, noted"));
}

TEST_F(PackagedRelease, DatesNamesOfAReportByThatReport) {
    constexpr std::string_view words = " in the report for ";
    std::ptrdiff_t dated = 0;
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            if (const std::size_t place = fact.label.find(words); place != std::string::npos) {
                EXPECT_EQ(fact.label.substr(place + words.size()), fact.asOf) << asset.id;
                ++dated;
            }
        }
    }
    EXPECT_GT(dated, 2'000);
}

TEST_F(PackagedRelease, TellsOfEachInventoryFacilityWhenItLastReported) {
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        const auto last = std::ranges::find(
            asset.facts, "Last report to the inventory", &OpenMapRelease::Fact::label);
        if (last != asset.facts.end()) {
            EXPECT_TRUE(asset.status == "Reported for " + last->value ||
                        asset.status == "Last reported for " + last->value)
                << asset.id;
            EXPECT_GE(last->value, asset.asOf) << asset.id;
        } else if (asset.id.starts_with("NPRI-")) {
            EXPECT_EQ(asset.status, "Reported for " + asset.asOf) << asset.id;
        }
    }
}

TEST_F(PackagedRelease, JoinsTheTwoFederalProgramsWithTheirOwnPeriods) {
    std::ptrdiff_t joined = 0;
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            if (asset.id.starts_with("NPRI-") && fact.label.starts_with("Total emissions") &&
                fact.sourceID == source(ghgrpFacilities).id) {
                EXPECT_EQ(fact.asOf, "2021");
                ++joined;
            }
        }
    }
    EXPECT_EQ(joined, told(ghgrpFacilities, "rows joined to an NPRI record, joined"));
}

TEST_F(PackagedRelease, ShowsNoTotalTwice) {
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        std::set<std::pair<std::string, std::string>> totals;
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            if (fact.label.starts_with("Total emissions")) {
                EXPECT_TRUE(totals.emplace(fact.label, fact.asOf).second) << asset.id;
            }
        }
    }
}

TEST_F(PackagedRelease, HasACategoryForMostFacilities) {
    std::map<std::string, std::size_t> kinds;
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        ++kinds[asset.kind];
    }
    EXPECT_FALSE(kinds.contains("other"));
    EXPECT_LT(kinds["processing"] * 4, m_release.assets.size());
    EXPECT_GT(kinds["compressor_station"], 1'000U);
    EXPECT_GT(kinds["battery"], 1'000U);
}

TEST_F(PackagedRelease, DrawsExactlyThePipelinesAsLines) {
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        EXPECT_EQ(asset.hasRoute(), asset.kind == "pipeline") << asset.id;
        EXPECT_EQ(asset.hasRoute(), asset.id.starts_with("GEM-P")) << asset.id;
    }
}

TEST_F(PackagedRelease, PlacesAPipelineOnOneOfItsVertices) {
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        const OpenMapRelease::Position point{asset.longitude, asset.latitude};
        EXPECT_EQ(asset.hasRoute(),
                  std::ranges::any_of(asset.routes,
                                      [&](const OpenMapRelease::Route& route) {
                                          return std::ranges::find(route, point) != route.end();
                                      }))
            << asset.id;
    }
}

TEST_F(PackagedRelease, HasNoFactThatSaysNothing) {
    const std::set<std::string> nothing{"n/a", "N/A", "N/a", "na", "NA", "--", "-"};
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            EXPECT_FALSE(nothing.contains(fact.value)) << asset.id << " " << fact.label;
            EXPECT_EQ(fact.value.find_first_of("\t\n\r"), std::string::npos) << asset.id;
            EXPECT_FALSE(fact.value.starts_with(' ') || fact.value.ends_with(' ')) << asset.id;
        }
    }
}

} // namespace
} // namespace vasker
