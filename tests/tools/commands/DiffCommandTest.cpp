#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace vasker {
namespace {

class DiffCommand : public testing::Test {
  protected:
    [[nodiscard]] ToolOutcome diff(const OpenMapRelease& before,
                                   const OpenMapRelease& after,
                                   const std::vector<std::string>& further = {}) const {
        std::vector<std::string> words{"diff",
                                       m_folder.write("old.json", encode(before)),
                                       m_folder.write("new.json", encode(after))};
        words.insert(words.end(), further.begin(), further.end());
        return runTool(words);
    }

    /// The text behind the two lines of its head.
    [[nodiscard]] std::string changes(const OpenMapRelease& before,
                                      const OpenMapRelease& after) const {
        const ToolOutcome outcome = diff(before, after);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        const std::size_t head = outcome.output.find('\n', outcome.output.find('\n') + 1) + 1;
        return outcome.output.substr(head);
    }

    ScratchFolder m_folder;
};

TEST_F(DiffCommand, TellsThatNothingChanged) {
    const OpenMapRelease release = makeRelease();
    EXPECT_EQ(changes(release, release), "\nNPRI: 2 records before, 2 now\n  nothing changed\n");
}

TEST_F(DiffCommand, TellsWhichRecordsCameWentAndMoved) {
    OpenMapRelease before = makeRelease();
    before.assets[0].name = "Zero";
    before.assets[1].name = "One";
    before.assets[0].latitude = 50;
    before.assets[0].longitude = -110;
    OpenMapRelease after = before;
    after.assets[1].id = "A-7";
    after.assets[1].name = "Seven";
    after.assets[0].latitude = 51;
    EXPECT_EQ(changes(before, after),
              "\nNPRI: 2 records before, 2 now\n"
              "  added: 1 record: A-7 Seven\n"
              "  gone: 1 record: A-1 One\n"
              "  moved: 1 record: A-0 Zero by 111 km\n");
}

TEST_F(DiffCommand, TellsWhichValuesChanged) {
    OpenMapRelease before = makeRelease();
    before.assets[0].name = "Zero";
    before.assets[0].kind = "processing";
    before.assets[0].reportedCompany = "Old Inc.";
    before.assets[0].facts = {{"City", "na", sourceID(0), "2016"},
                              {"Emissions", "1 t", sourceID(0), "2020"},
                              {"Emissions", "2 t", sourceID(0), "2019"}};
    OpenMapRelease after = before;
    after.assets[0].kind = "battery";
    after.assets[0].reportedCompany.reset();
    after.assets[0].facts = {{"Emissions", "1 t", sourceID(0), "2020"},
                             {"Emissions", "3 t", sourceID(0), "2019"},
                             {"Status", "new", sourceID(0), "2022"}};
    EXPECT_EQ(changes(before, after),
              "\nNPRI: 2 records before, 2 now\n"
              "  category: 1 changed: A-0 Zero\n"
              "    \"processing\" is now \"battery\"\n"
              "  company: 1 gone: A-0 Zero\n"
              "  fact \"City\": 1 gone: A-0 Zero\n"
              "  fact \"Emissions\": 1 changed: A-0 Zero\n"
              "    \"2 t (2019, NPRI)\" is now \"3 t (2019, NPRI)\"\n"
              "  fact \"Status\": 1 new: A-0 Zero\n");
}

TEST_F(DiffCommand, ShowsValuesThatDifferByAControlCharacterAlone) {
    OpenMapRelease before = makeRelease();
    before.assets[0].name = "Ant\tHill\x01";
    OpenMapRelease after = before;
    after.assets[0].name = "Ant Hill ";
    EXPECT_NE(changes(before, after).find(R"("Ant\tHill\u0001" is now "Ant Hill ")"),
              std::string::npos)
        << changes(before, after);
}

TEST_F(DiffCommand, CountsWhatChangedOften) {
    OpenMapRelease before = makeRelease();
    for (std::size_t number = 10; number < 20; ++number) {
        before.assets.push_back(makeAsset(number));
        before.assets.back().kind = "other";
    }
    OpenMapRelease after = before;
    for (std::size_t place = 2; place < after.assets.size(); ++place) {
        after.assets[place].kind = "battery";
    }
    EXPECT_EQ(changes(before, after),
              "\nNPRI: 12 records before, 12 now\n"
              "  category: 10 changed\n"
              "    \"other\" is now \"battery\", 10 times\n");
}

TEST_F(DiffCommand, ANewDigestOfATableIsNoChange) {
    const OpenMapRelease before = makeRelease();
    OpenMapRelease after = before;
    after.sources[0].id = sourceID(9);
    for (OpenMapRelease::Asset& record : after.assets) {
        record.sourceID = sourceID(9);
        for (OpenMapRelease::Fact& fact : record.facts) {
            fact.sourceID = sourceID(9);
        }
    }
    EXPECT_EQ(changes(before, after), "\nNPRI: 2 records before, 2 now\n  nothing changed\n");
}

TEST_F(DiffCommand, TellsWhichLimitationsChanged) {
    const OpenMapRelease before = makeRelease();
    OpenMapRelease after = before;
    after.limitations = {"New one."};
    const std::string text = changes(before, after);
    EXPECT_TRUE(text.starts_with(
        "limitation added: New one.\nlimitation gone: " + before.limitations[0] + "\n"))
        << text;
}

TEST_F(DiffCommand, PrintsEveryChangeAsJson) {
    const OpenMapRelease before = makeRelease();
    OpenMapRelease after = before;
    after.assets[0].latitude += 1;
    after.assets[0].status = "closed";
    after.assets[0].facts[0].value = "13 t";
    after.assets[1].id = "A-7";
    const auto object = nlohmann::json::parse(diff(before, after, {"--json"}).output);
    const auto& source = object["sources"][0];
    EXPECT_EQ(source["source"], "NPRI");
    EXPECT_EQ(source["added"][0]["id"], "A-7");
    EXPECT_EQ(source["gone"][0]["id"], "A-1");
    EXPECT_EQ(source["moved"][0]["id"], "A-0");
    EXPECT_NEAR(source["moved"][0]["metres"].get<double>(), 111'195, 1);
    EXPECT_EQ(source["changed"][0]["field"], "status");
    EXPECT_EQ(source["changed"][0]["after"], "closed");
    EXPECT_EQ(source["changed"][1]["fact"], before.assets[0].facts[0].label);
}

TEST_F(DiffCommand, ReadsOneReleaseFromStandardInput) {
    const std::string text = encode(makeRelease());
    const std::string file = m_folder.write("a.json", text);
    EXPECT_EQ(runToolWith(text, {"diff", file, "-"}).output, runTool({"diff", file, file}).output);
    EXPECT_EQ(runToolWith(text, {"diff", "-", "-"}).status, 2);
}

TEST_F(DiffCommand, NamesTheFileThatIsRefused) {
    const std::string good = m_folder.write("good.json", encode(makeRelease()));
    const std::string bad = m_folder.write("bad.json", "[]");
    const ToolOutcome outcome = runTool({"diff", good, bad});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.errors.starts_with(bad + ": ")) << outcome.errors;
}

} // namespace
} // namespace vasker
