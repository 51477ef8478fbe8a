#include "data/Digest.h"
#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"
#include "tools/openmap-release/packing/tables/Cells.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vasker {
namespace {

constexpr const char* time = "2026-01-02T03:04:05Z";

/// A copy of the invented datasets in fixtures/datasets, to change something of.
class PackCommand : public testing::Test {
  protected:
    PackCommand() {
        std::filesystem::copy(std::string(VASKER_FIXTURES) + "/datasets",
                              m_folder.path("in"),
                              std::filesystem::copy_options::recursive);
        std::filesystem::create_directory(m_folder.path("out"));
    }

    [[nodiscard]] std::string output() const { return m_folder.path("out/OpenMap.json"); }
    [[nodiscard]] std::string information() const { return m_folder.path("out/Information.json"); }

    [[nodiscard]] ToolOutcome pack(const std::vector<std::string>& further = {}) const {
        std::vector<std::string> words{"pack",
                                       "--input",
                                       m_folder.path("in"),
                                       "--output",
                                       output(),
                                       "--information",
                                       information(),
                                       "--generated-at",
                                       time};
        words.insert(words.end(), further.begin(), further.end());
        return runTool(words);
    }

    void change(const std::string& file, std::string_view from, std::string_view to) const {
        const std::string name = "in/" + file;
        static_cast<void>(m_folder.write(name, replaced(contentOf(m_folder.path(name)), from, to)));
    }

    /// The message of a packing that a malformed file stops; nothing may have been written.
    [[nodiscard]] std::string refusal() const {
        const ToolOutcome outcome = pack();
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.output, "");
        EXPECT_TRUE(std::filesystem::is_empty(m_folder.path("out")));
        return outcome.errors;
    }

    [[nodiscard]] std::string packedText() const {
        EXPECT_EQ(pack().status, 0);
        return contentOf(output());
    }

    ScratchFolder m_folder;
};

/// A release as lines: each record, its facts and its routes.
std::string described(const OpenMapRelease& release) {
    std::string text;
    const auto number = [](double value) {
        std::string digits = std::to_string(value);
        digits.erase(digits.find_last_not_of('0') + 1);
        return digits.ends_with('.') ? digits.substr(0, digits.size() - 1) : digits;
    };
    const auto source = [&](const std::string& id) {
        return std::string(release.source(id)->shortName());
    };
    for (const OpenMapRelease::Asset& asset : release.assets) {
        text += asset.id + " | " + asset.name + " | " + asset.kind + " | " + asset.jurisdiction +
                " | " + asset.status + " | " + source(asset.sourceID) + " " + asset.asOf + " | " +
                number(asset.longitude) + " " + number(asset.latitude) + " | " +
                asset.reportedCompany.value_or("no company") + "\n";
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            text += "    " + fact.label + ": " + fact.value + " | " + source(fact.sourceID) + " " +
                    fact.asOf + "\n";
        }
        for (const OpenMapRelease::Route& route : asset.routes) {
            text += "    route:";
            for (const OpenMapRelease::Position& position : route) {
                text += " " + number(position.longitude) + "," + number(position.latitude);
            }
            text += "\n";
        }
    }
    return text;
}

TEST_F(PackCommand, MakesTheRecordsThatTheDatasetsTell) {
    EXPECT_EQ(described(decoded(packedText())),
              contentOf(std::string(VASKER_FIXTURES) + "/records.txt"));
}

TEST_F(PackCommand, ReportsWhatItTookJoinedDroppedAndCorrected) {
    const ToolOutcome outcome = pack();
    EXPECT_EQ(outcome.errors, "");
    const std::string text = contentOf(output());
    EXPECT_EQ(outcome.output,
              contentOf(std::string(VASKER_FIXTURES) + "/report.txt") + "packed  15 records, " +
                  grouped(text.size()) + " bytes, SHA-256 " + sha256(text) + "\n");
}

TEST_F(PackCommand, TellsInEachSourceWhatItReports) {
    const OpenMapRelease release = decoded(packedText());
    ASSERT_EQ(release.sources.size(), 13U);
    EXPECT_EQ(
        release.sources[0].modifications,
        "Selected. Counted in packing: cells with a tab, which became a blank, corrected: 1; "
        "cities that name no place, such as \"na\", dropped: 1; rows without a position, "
        "dropped: 1; rows as records, taken: 6; records with this table's position, noted: 4.");
    EXPECT_EQ(
        release.sources[1].modifications,
        "Joined. Counted in packing: rows left out by hand (9999: invented twice), dropped: 1; "
        "positions of records, taken: 2.");
}

TEST_F(PackCommand, DescribesTheRelease) {
    const OpenMapRelease release = decoded(packedText());
    EXPECT_EQ(release.releaseID, "canada-energy-2026-01");
    EXPECT_EQ(release.generatedAt, time);
    EXPECT_EQ(release.limitations, std::vector<std::string>{"Nothing here is real."});
    EXPECT_EQ(release.sources[0].id, sha256(contentOf(m_folder.path("in/npri_facilities.csv"))));
    EXPECT_EQ(release.sources[0].publisher, "An inventory");
}

TEST_F(PackCommand, TakesTheDescriptionThatItIsGiven) {
    std::filesystem::rename(m_folder.path("in/description.toml"), m_folder.path("other.toml"));
    EXPECT_EQ(pack().status, 2);
    EXPECT_EQ(pack({"--description", m_folder.path("other.toml")}).status, 0);
}

TEST_F(PackCommand, NamesTheLineOfAFaultInTheDescription) {
    change("description.toml", "coverage =", "coverge =");
    EXPECT_EQ(refusal(), "description.toml:3: coverge: unknown field, did you mean coverage?\n");
}

TEST_F(PackCommand, PacksWithoutTheTablesThatItCanDoWithout) {
    const std::string whole = contentOf(m_folder.path("in/description.toml"));
    const std::size_t first = whole.find("[table.npri-reports]");
    const std::size_t second = whole.find("[table.ghgrp-facilities]");
    const std::size_t third = whole.find("[table.ghgrp-totals]");
    const std::size_t last = whole.find("[table.gem-oil-pipelines]");
    static_cast<void>(m_folder.write("in/description.toml",
                                     whole.substr(0, first) + whole.substr(second, third - second) +
                                         whole.substr(last)));
    const OpenMapRelease release = decoded(packedText());
    EXPECT_EQ(release.assets[0].status, "Reported for 2016");
    EXPECT_EQ(release.sources.size(), 6U);
}

TEST_F(PackCommand, WritesTheReleaseToStandardOutput) {
    const std::string file = packedText();
    const ToolOutcome outcome =
        runTool({"pack", "--input", m_folder.path("in"), "--output", "-", "--generated-at", time});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, file);
    EXPECT_TRUE(outcome.errors.starts_with("taken "));
}

TEST_F(PackCommand, WritesTheSameBytesAgain) {
    const std::string first = packedText();
    const std::string firstInformation = contentOf(information());
    EXPECT_EQ(packedText(), first);
    EXPECT_EQ(contentOf(information()), firstInformation);
}

TEST_F(PackCommand, PutsTheDigestIntoTheInformationAndKeepsTheRest) {
    static_cast<void>(m_folder.write("out/Information.json",
                                     "{\"first\": 1, \"VaskerOpenMapSHA256\": 0, \"last\": [ ]}"));
    const std::string digest = sha256(packedText());
    EXPECT_EQ(contentOf(information()),
              "{\"first\": 1, \"VaskerOpenMapSHA256\": \"" + digest + "\", \"last\": [ ]}");
}

TEST_F(PackCommand, DeclaresOnlySourcesThatAreCited) {
    const std::string table = contentOf(m_folder.path("in/gem_lng_terminals.csv"));
    static_cast<void>(
        m_folder.write("in/gem_lng_terminals.csv", table.substr(0, table.find('\n') + 1)));
    EXPECT_EQ(decoded(packedText()).sources.size(), 12U);
}

TEST_F(PackCommand, FallsBackToTheTableWhereTheListSaysZero) {
    change("npri_sources/npri_coordinates_2024.csv", "55.51234,-118.26789", "0,0");
    const OpenMapRelease release = decoded(packedText());
    EXPECT_EQ(release.assets[0].latitude, 55.5);
    EXPECT_EQ(release.assets[0].longitude, -118.25);
}

TEST_F(PackCommand, NamesFileAndLineOfAMalformedRow) {
    change("npri_facilities.csv", "2015,104,", "2015,104,surplus,");
    EXPECT_EQ(refusal(), "npri_facilities.csv:5: 17 fields, but 16 headings\n");
}

TEST_F(PackCommand, RefusesACoordinateThatIsNoNumber) {
    change("npri_facilities.csv", ",56.25,", ",56.25N,");
    EXPECT_EQ(refusal(), "npri_facilities.csv:3: Latitude \"56.25N\" is not a number\n");
}

TEST_F(PackCommand, RefusesAPositionOffTheGlobe) {
    change("gem_lng_terminals.csv", "-130.417", "-230.417");
    EXPECT_EQ(refusal(), "gem_lng_terminals.csv:2: Longitude -230.417 is off the globe\n");
}

TEST_F(PackCommand, RefusesEmissionsThatAreNoNumber) {
    change("ghgrp_facilities.csv", ",300.68,", ",much,");
    EXPECT_EQ(refusal(), "ghgrp_facilities.csv:2: Total emissions \"much\" is not a number\n");
}

TEST_F(PackCommand, RefusesACapacityThatIsNoNumber) {
    change("gem_goit_pipelines.csv", "\"450,000.00\"", "half a million");
    EXPECT_EQ(refusal(), "gem_goit_pipelines.csv:2: Capacity \"half a million\" is not a number\n");
}

TEST_F(PackCommand, RefusesAnUnknownProvince) {
    change("npri_facilities.csv", ",QC,", ",XX,");
    EXPECT_EQ(refusal(), "npri_facilities.csv:4: \"XX\" is no province\n");
}

TEST_F(PackCommand, RefusesAMissingColumn) {
    change("gem_ggit_pipelines.csv", "RouteAccuracy", "Accuracy");
    EXPECT_EQ(refusal(), "gem_ggit_pipelines.csv:1: there is no column \"RouteAccuracy\"\n");
}

TEST_F(PackCommand, RefusesAnIdThatStandsTwice) {
    change("ghgrp_facilities.csv", "20007,Cedar", "20006,Cedar");
    EXPECT_EQ(refusal(), "ghgrp_facilities.csv:8: Facility ID G20006 stands twice\n");
}

TEST_F(PackCommand, RefusesTwoNpriIdsInOneYear) {
    change("ghgrp_sources/ghgrp_alberta_2004-2016.csv", "G20002,2012,", "G20002,2013,");
    EXPECT_EQ(refusal(),
              "ghgrp_sources/ghgrp_alberta_2004-2016.csv:5: G20002 is two NPRI facilities in "
              "2013\n");
}

TEST_F(PackCommand, NamesARouteFileThatIsMalformed) {
    change("routes/liquid/P9001.geojson", "LineString", "Polygon");
    EXPECT_EQ(refusal(),
              "routes/liquid/P9001.geojson: a geometry of type \"Polygon\" is not a line\n");
}

TEST_F(PackCommand, WritesNothingThatItsOwnCheckRefuses) {
    change("npri_facilities.csv", "Birch Hollow Gas Plant 01-02", std::string(1'001, 'x'));
    EXPECT_TRUE(refusal().starts_with("the packed release would be refused: assets[0]"));
}

TEST_F(PackCommand, ReportsAnInputThatCannotBeRead) {
    std::filesystem::remove(m_folder.path("in/routes/index.csv"));
    const ToolOutcome outcome = pack();
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "openmap-release: " + m_folder.path("in") +
                  "/routes/index.csv: No such file or directory\n");
}

TEST_F(PackCommand, WritesNeitherFileWhereOneCannotBeWritten) {
    std::filesystem::create_directory(information());
    const ToolOutcome outcome = pack();
    EXPECT_EQ(outcome.status, 2);
    EXPECT_FALSE(std::filesystem::exists(output()));
}

TEST_F(PackCommand, RefusesATimeWithoutAZone) {
    const ToolOutcome outcome = runTool({"pack",
                                         "--input",
                                         m_folder.path("in"),
                                         "--output",
                                         output(),
                                         "--information",
                                         information(),
                                         "--generated-at",
                                         "2026-01-02T03:04:05"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.errors.starts_with("openmap-release: --generated-at: "));
}

} // namespace
} // namespace vasker
