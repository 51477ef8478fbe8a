#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

/// Four records in this file order; names, kinds and provinces differ.
OpenMapRelease catalogue() {
    OpenMapRelease release = makeRelease();
    const auto add = [&](std::size_t number, const char* name, const char* kind) {
        OpenMapRelease::Asset asset = makeAsset(number);
        asset.name = name;
        asset.kind = kind;
        asset.jurisdiction = number == 11 ? "Alberta" : "Ontario";
        asset.reportedCompany.reset();
        asset.facts.clear();
        release.assets.push_back(asset);
    };
    release.assets.erase(release.assets.begin() + 1, release.assets.end());
    release.assets[0].name = "éclair";
    release.assets[0].kind = "terminal";
    release.assets[0].jurisdiction = "Ontario";
    add(10, "Plant 10", "gas_plant");
    add(11, "Plant 9", "gas_plant");
    add(12, "echo", "Storage");
    return release;
}

class ListCommand : public testing::Test {
  protected:
    [[nodiscard]] std::string file() const {
        return m_folder.write("release.json", encode(catalogue()));
    }
    [[nodiscard]] std::string invalidFile() const { return m_folder.write("bad.json", "[]"); }

  private:
    ScratchFolder m_folder;
};

TEST_F(ListCommand, PrintsIdsInNameOrder) {
    const ToolOutcome outcome = runTool({"list", file()});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "A-12\nA-0\nA-11\nA-10\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(ListCommand, OrdersTheSameInThePosixLocaleAndInEnglish) {
    const std::string path = file();
    EXPECT_EQ(runTool({"list", path}, "POSIX").output,
              runTool({"list", path}, "en_CA.UTF-8").output);
}

TEST_F(ListCommand, SearchesAndFilters) {
    const std::string path = file();
    EXPECT_EQ(runTool({"list", path, "--query", "ALBERTA"}).output, "A-11\n");
    EXPECT_EQ(runTool({"list", path, "--kind", "gas_plant"}).output, "A-11\nA-10\n");
    EXPECT_EQ(runTool({"list", path, "--kind=gas_plant", "--query=10"}).output, "A-10\n");
    EXPECT_EQ(runTool({"list", path, "--kind", "all", "--query", ""}).output,
              runTool({"list", path}).output);
}

TEST_F(ListCommand, PrintsNothingWhereNothingPasses) {
    const ToolOutcome outcome = runTool({"list", file(), "--kind", "GAS_PLANT"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "no record is of the kind GAS_PLANT, did you mean gas_plant?\n");
    EXPECT_EQ(runTool({"list", file(), "--query", "nothing"}).errors, "");
}

TEST_F(ListCommand, FoldsLettersAsTheLocaleDoes) {
    const std::string path = file();
    EXPECT_EQ(runTool({"list", path, "--query", "PLANT 9"}, "tr_TR.UTF-8").output, "A-11\n");
    EXPECT_EQ(runTool({"list", path, "--query", "ÉCLAIR"}, "en").output, "A-0\n");
    EXPECT_EQ(runTool({"list", path, "--query", "ÉCLAIR"}, "tr").output, "");
}

TEST_F(ListCommand, RefusesAnInvalidFileAsCheckDoes) {
    const std::string path = invalidFile();
    const ToolOutcome checked = runTool({"check", path});
    for (const char* command : {"list", "kinds"}) {
        const ToolOutcome outcome = runTool({command, path});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.output, checked.output);
        EXPECT_EQ(outcome.errors, checked.errors);
    }
}

using KindsCommand = ListCommand;

TEST_F(KindsCommand, PrintsKeysAndLabelsInCodePointOrder) {
    const ToolOutcome outcome = runTool({"kinds", file()});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "Storage\tStorage\ngas_plant\tGas plant\nterminal\tTerminal\n");
    EXPECT_EQ(outcome.errors, "");
}

} // namespace
} // namespace vasker
