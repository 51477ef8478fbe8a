// The release that the viewer is shipped with.
#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

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
        : m_release(OpenMapRelease::decode(contentOf(releaseFile()), bundledDigest())) {}

    [[nodiscard]] std::ptrdiff_t recordsWithPrefix(std::string_view prefix) const {
        return std::ranges::count_if(m_release.assets, [&](const OpenMapRelease::Asset& asset) {
            return asset.id.starts_with(prefix);
        });
    }

    /// The whole number before `words` in the text of a source's modifications.
    [[nodiscard]] std::ptrdiff_t told(std::size_t source, std::string_view words) const {
        const std::string& text = m_release.sources.at(source).modifications;
        const std::size_t end = text.find(words);
        EXPECT_NE(end, std::string::npos) << words;
        const std::size_t start = text.find_last_not_of("0123456789", end - 2) + 1;
        return std::stol(text.substr(start, end - start));
    }

    OpenMapRelease m_release;
};

TEST_F(PackagedRelease, PassesTheCheckWithTheBundledDigest) {
    const ToolOutcome outcome = runTool({"check", releaseFile(), "--sha256", bundledDigest()});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST_F(PackagedRelease, HoldsTheRecordsThatItsSourcesTellOf) {
    EXPECT_EQ(recordsWithPrefix("NPRI-"), told(0, " rows became records"));
    EXPECT_EQ(recordsWithPrefix("GHGRP-"), told(2, " became records of their own"));
    EXPECT_EQ(recordsWithPrefix("GEM-P"),
              told(3, " pipelines became records") + told(4, " pipelines became records"));
    EXPECT_EQ(recordsWithPrefix("GEM-G"), told(5, " of them"));
}

TEST_F(PackagedRelease, PlacesEachNpriRecordByTheListOrTheTable) {
    std::map<std::string, std::ptrdiff_t> places;
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            if (asset.id.starts_with("NPRI-") && fact.label == "Location basis") {
                ++places[fact.sourceID];
            }
        }
    }
    EXPECT_EQ(places[m_release.sources[0].id], told(0, " records keep this table's position"));
    EXPECT_EQ(places[m_release.sources[1].id], told(1, " records take theirs from here"));
}

TEST_F(PackagedRelease, JoinsTheTwoFederalProgramsWithTheirOwnPeriods) {
    std::ptrdiff_t joined = 0;
    std::set<std::string> records;
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            if (asset.id.starts_with("NPRI-") && fact.label == "Total emissions") {
                EXPECT_EQ(fact.sourceID, m_release.sources[2].id);
                EXPECT_EQ(fact.asOf, "2021");
                EXPECT_NE(asset.asOf, "2021");
                ++joined;
                records.insert(asset.id);
            }
        }
    }
    EXPECT_EQ(joined, told(2, " facilities, whatever their industry"));
    EXPECT_EQ(static_cast<std::ptrdiff_t>(records.size()), told(2, " NPRI records. "));
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
    for (const OpenMapRelease::Asset& asset : m_release.assets) {
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            EXPECT_TRUE(fact.value != "n/a" && fact.value != "--" && !fact.value.starts_with(' '))
                << asset.id << " " << fact.label;
        }
    }
}

} // namespace
} // namespace vasker
