// The commands that read a release and print what it holds: show, stats, export.
#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace vasker {
namespace {

class ReadingCommands : public testing::Test {
  protected:
    [[nodiscard]] std::string file(const OpenMapRelease& release = makeRelease()) const {
        return m_folder.write("release.json", encode(release));
    }
    [[nodiscard]] std::string path(std::string_view name) const { return m_folder.path(name); }
    [[nodiscard]] std::string invalidFile() const { return m_folder.write("bad.json", "[]"); }

  private:
    ScratchFolder m_folder;
};

using ShowCommand = ReadingCommands;
using StatsCommand = ReadingCommands;
using ExportCommand = ReadingCommands;

TEST_F(ShowCommand, PrintsARecordWithItsFactsAndSources) {
    OpenMapRelease release = makeRelease();
    OpenMapRelease::Asset& record = release.assets[0];
    record.name = "Birch\x1b[31m Plant\u0085";
    record.kind = "gas_plant";
    record.jurisdiction = "Alberta";
    record.status = "Reported for 2022";
    record.asOf = "2016";
    record.reportedCompany = "Birch Inc.";
    record.latitude = 55.5;
    record.longitude = -118.25;
    record.facts = {{"NPRI ID", "106", sourceID(0), "2016"}};
    const OpenMapRelease::Source& source = release.sources[0];
    const ToolOutcome outcome = runTool({"show", file(release), record.id});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output,
              "Birch [31m Plant \nID: A-0\nCategory: Gas plant (gas_plant)\nJurisdiction: Alberta\n"
              "Status: Reported for 2022\nSource period: 2016\nReporting company: Birch Inc.\n"
              "Position: 55.5, -118.25\n\nNPRI ID: 106 (2016, NPRI)\n\nNPRI: " +
                  source.publisher + ", " + source.sourceURL + "\n" + source.attribution + " " +
                  source.licenceURL + "\n");
}

TEST_F(ShowCommand, PrintsTheRecordAsItStandsInTheFile) {
    EXPECT_EQ(runTool({"show", file(), "A-1", "--json"}).output,
              encode(makeRelease().assets[1]) + "\n");
}

TEST_F(ShowCommand, NamesTheNearestIdOfAnUnknownRecord) {
    const ToolOutcome outcome = runTool({"show", file(), "a-O"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "a-O: no such record, did you mean A-0?\n");
}

TEST_F(StatsCommand, CountsByWhatRecordsSay) {
    OpenMapRelease release = makeRelease();
    for (OpenMapRelease::Asset& record : release.assets) {
        record.jurisdiction.clear();
        record.kind = "battery";
    }
    const std::string text = runTool({"stats", file(release)}).output;
    EXPECT_NE(text.find("\n2 records\n"), std::string::npos);
    EXPECT_NE(text.find("\nby category\n       2  battery\n"), std::string::npos);
    EXPECT_NE(text.find("\nby jurisdiction\n       2  (none)\n"), std::string::npos);
    EXPECT_NE(text.find("\nby source\n       2  NPRI\n"), std::string::npos);
}

TEST_F(StatsCommand, PrintsJson) {
    const auto object = nlohmann::json::parse(runTool({"stats", file(), "--json"}).output);
    EXPECT_EQ(object["records"], 2);
    EXPECT_EQ(object["source"]["NPRI"], 2);
    for (const char* section : {"category", "jurisdiction", "period", "status"}) {
        EXPECT_FALSE(object[section].empty()) << section;
    }
}

TEST_F(ExportCommand, WritesTheRecordsThatListPrintsInItsOrder) {
    OpenMapRelease release = makeRelease();
    release.assets[0].name = "Zebra";
    release.assets[1].name = "Ant";
    const std::string path = file(release);
    const ToolOutcome outcome = runTool({"export", path, "--format", "geojson"});
    EXPECT_EQ(outcome.status, 0);
    const auto collection = nlohmann::json::parse(outcome.output);
    EXPECT_EQ(collection["sha256"], sha256(contentOf(path)));
    EXPECT_EQ(collection["features"][0]["properties"]["id"], "A-1");
    EXPECT_EQ(collection["features"][1]["properties"]["id"], "A-0");
    const std::string found = runTool({"export", path, "--format=csv", "--query=zebra"}).output;
    EXPECT_NE(found.find("\nA-0,Zebra,"), std::string::npos);
    EXPECT_EQ(found.find("A-1,"), std::string::npos);
    EXPECT_NE(found.find(",query=zebra,filter=all\n"), std::string::npos);
}

TEST_F(ExportCommand, WritesAFile) {
    const std::string input = file();
    const ToolOutcome outcome =
        runTool({"export", input, "--format", "csv", "--output", path("out.csv")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(contentOf(path("out.csv")), runTool({"export", input, "--format", "csv"}).output);
}

TEST_F(ExportCommand, KnowsItsFormats) {
    const ToolOutcome outcome = runTool({"export", file(), "--format", "geojsn"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.errors.starts_with("openmap-release: --format: \"geojsn\" is neither csv "
                                           "nor geojson, did you mean geojson?\n"));
}

TEST_F(ExportCommand, RefusesASearchThatWouldSpoilTheFile) {
    for (const std::string option : {"--query", "--kind"}) {
        const ToolOutcome outcome =
            runTool({"export", file(), "--format", "csv", option, "gas\xFF"});
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.output, "");
        EXPECT_TRUE(
            outcome.errors.starts_with("openmap-release: " + option + ": the text is not UTF-8\n"))
            << outcome.errors;
    }
}

TEST_F(ExportCommand, NotesACategoryThatNoRecordHas) {
    const ToolOutcome outcome = runTool({"export", file(), "--format", "csv", "--kind", "pipelin"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.errors.starts_with("no record is of the kind pipelin")) << outcome.errors;
}

TEST_F(ReadingCommands, RefuseAnInvalidFileAsCheckDoes) {
    const std::string path = invalidFile();
    const ToolOutcome checked = runTool({"check", path});
    for (const std::vector<std::string>& words : {std::vector<std::string>{"stats", path},
                                                  {"show", path, "A-0"},
                                                  {"export", path, "--format", "csv"}}) {
        const ToolOutcome outcome = runTool(words);
        EXPECT_EQ(outcome.status, 1) << words.front();
        EXPECT_EQ(outcome.output, checked.output) << words.front();
        EXPECT_EQ(outcome.errors, checked.errors) << words.front();
    }
}

TEST_F(ReadingCommands, ReadStandardInput) {
    const std::string text = encode(makeRelease());
    EXPECT_EQ(runToolWith(text, {"check", "-"}).output,
              "ok: 2 records, 1 routes, 1 sources, 2 route points\n");
    EXPECT_EQ(runToolWith(text, {"list", "-"}).output, runTool({"list", file()}).output);
    EXPECT_EQ(runToolWith(text, {"stats", "-"}).output, runTool({"stats", file()}).output);
    EXPECT_EQ(runToolWith("", {"check", "-"}).status, 1);
}

} // namespace
} // namespace vasker
