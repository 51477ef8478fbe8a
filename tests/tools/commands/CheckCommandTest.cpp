#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

class CheckCommand : public testing::Test {
  protected:
    [[nodiscard]] std::string file(std::string_view bytes) const {
        return m_folder.write("release.json", bytes);
    }
    [[nodiscard]] std::string file(const OpenMapRelease& release) const {
        return file(encode(release));
    }
    [[nodiscard]] std::string missingFile() const { return m_folder.path("missing.json"); }

  private:
    ScratchFolder m_folder;
};

void expectRefusal(const ToolOutcome& outcome, std::string_view name, std::string_view errors) {
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, std::string(name) + "\n");
    EXPECT_EQ(outcome.errors, errors);
}

TEST_F(CheckCommand, CountsAValidRelease) {
    const ToolOutcome outcome = runTool({"check", file(makeRelease())});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "ok: 2 records, 1 routes, 1 sources, 2 route points\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(CheckCommand, CountsARecordWithTwoLinesAsOneRoute) {
    OpenMapRelease release = makeRelease();
    release.assets[1].routes.push_back(makeRoute(3));
    EXPECT_EQ(runTool({"check", file(release)}).output,
              "ok: 2 records, 1 routes, 1 sources, 5 route points\n");
}

TEST_F(CheckCommand, AcceptsTheDigestOfTheFile) {
    const std::string text = encode(makeRelease());
    EXPECT_EQ(runTool({"check", file(text), "--sha256", sha256(text)}).status, 0);
}

TEST_F(CheckCommand, TakesTheDigestAsItStands) {
    const std::string text = encode(makeRelease());
    std::string digest = sha256(text);
    std::ranges::transform(digest, digest.begin(), [](char digit) {
        return digit >= 'a' && digit <= 'f' ? static_cast<char>(digit - 'a' + 'A') : digit;
    });
    constexpr std::string_view message = "The bundled map does not match this app release.\n";
    expectRefusal(runTool({"check", file(text), "--sha256", digest}), "checksum", message);
    expectRefusal(runTool({"check", file(text), "--sha256="}), "checksum", message);
    expectRefusal(
        runTool({"check", file(text), "--sha256", sha256(text) + "\n"}), "checksum", message);
}

TEST_F(CheckCommand, NamesEachCase) {
    OpenMapRelease release = makeRelease();
    release.schemaVersion = 2;
    expectRefusal(runTool({"check", file(release)}),
                  "schema",
                  "The bundled map uses an unsupported format.\n");
    release = makeRelease();
    release.releaseID.clear();
    expectRefusal(runTool({"check", file(release)}),
                  "records",
                  "The bundled map has incomplete or repeated records.\n");
    release = makeRelease();
    release.sources.push_back(makeSource(7));
    expectRefusal(runTool({"check", file(release)}),
                  "provenance",
                  "The bundled map is missing source and licence information.\n");
    release = makeRelease();
    release.assets[1].routes[0][1].longitude = 200;
    expectRefusal(runTool({"check", file(release)}),
                  "coordinates",
                  "The bundled map contains invalid coordinates.\n");
    expectRefusal(runTool({"check", file(std::string(15'000'001, ' '))}),
                  "oversized",
                  "The bundled map exceeds its size limit.\n");
}

TEST_F(CheckCommand, PassesTheJsonLibrarysErrorOn) {
    const ToolOutcome outcome = runTool({"check", file("{\"schemaVersion\":")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "decoding\n");
    EXPECT_NE(outcome.errors, "\n");
}

TEST_F(CheckCommand, ExplainsWhereARuleFailed) {
    OpenMapRelease release = makeRelease();
    release.assets[1].routes[0][1].longitude = 200;
    expectRefusal(runTool({"check", "--explain", file(release)}),
                  "coordinates",
                  "The bundled map contains invalid coordinates.\n"
                  "assets[1].routes[0][1]: longitude 200 is outside -180 to 180\n");
}

TEST_F(CheckCommand, ExplainsOnWhichLineAndColumnAFileIsNoJson) {
    const ToolOutcome outcome =
        runTool({"check", "--explain", file("{\n  \"schemaVersion\": 1,\n  oops\n}")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "decoding\n");
    EXPECT_NE(outcome.errors.find("\nline 3, column 3: "), std::string::npos) << outcome.errors;
    EXPECT_EQ(runTool({"check", file("{\noops")}).errors.find("line"), std::string::npos);
}

TEST_F(CheckCommand, ExplainsWhatNoReaderOfJsonMinds) {
    const auto explained = [&](const std::string& text) {
        return runTool({"check", "--explain", file(text)}).errors;
    };
    EXPECT_NE(
        explained("\xEF\xBB\xBF" + encode(makeRelease())).find("\nline 1, column 1: a byte order "),
        std::string::npos);
    EXPECT_NE(explained("[1, 2]").find("\nline 1, column 1: no object\n"), std::string::npos);
    EXPECT_NE(explained("17").find("\nline 1, column 1: no object\n"), std::string::npos);
}

TEST_F(CheckCommand, ExplainsInFewWordsHoweverLongTheFaultIs) {
    const ToolOutcome outcome =
        runTool({"check", "--explain", file("{\"a\":\"" + std::string(1'000'000, 'x'))});
    EXPECT_NE(outcome.errors.find("line 1, column "), std::string::npos);
    EXPECT_LT(outcome.errors.size(), 400U);
}

TEST_F(CheckCommand, ExplainsWhereAValueHasTheWrongType) {
    const std::string text =
        replaced(encode(makeRelease()), "\"schemaVersion\":1", "\"schemaVersion\":\"1\"");
    const ToolOutcome outcome = runTool({"check", "--explain", file(text)});
    EXPECT_NE(outcome.errors.find("\nschemaVersion"), std::string::npos) << outcome.errors;
}

TEST_F(CheckCommand, ReportsAFileThatCannotBeRead) {
    const ToolOutcome outcome = runTool({"check", missingFile()});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "openmap-release: " + missingFile() + ": No such file or directory\n");
}

TEST_F(CheckCommand, ReportsAFolderAsUnreadable) {
    const ToolOutcome outcome = runTool({"check", "/"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "openmap-release: /: Is a directory\n");
}

TEST_F(CheckCommand, FailsWhenItsOutputCannotBeWritten) {
    const ToolOutcome outcome = runToolInto("/dev/full", {"check", file(makeRelease())});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "openmap-release: standard output: No space left on device\n");
}

} // namespace
} // namespace vasker
