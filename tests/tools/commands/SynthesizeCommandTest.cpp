#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::vector<std::string> command(const char* records,
                                 const char* points,
                                 const char* bytes,
                                 const char* seed,
                                 const std::string& output) {
    return {"synthesize",
            "--records",
            records,
            "--route-points",
            points,
            "--bytes",
            bytes,
            "--seed",
            seed,
            "--output",
            output};
}

TEST(SynthesizeCommand, WritesAValidReleaseOfExactlyTheSizesAskedFor) {
    const ScratchFolder folder;
    const std::string path = folder.path("release.json");
    const ToolOutcome outcome = runTool(command("200", "5000", "400000", "7", path));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(contentOf(path).size(), 400'000U);
    EXPECT_EQ(runTool({"check", path}).output,
              "ok: 200 records, 5 routes, 5 sources, 5000 route points\n");
}

TEST(SynthesizeCommand, WritesTheSameBytesForTheSameSeed) {
    const ScratchFolder folder;
    for (const char* name : {"a", "b"}) {
        ASSERT_EQ(runTool(command("50", "100", "0", "3", folder.path(name))).status, 0);
    }
    ASSERT_EQ(runTool(command("50", "100", "0", "4", folder.path("c"))).status, 0);
    EXPECT_EQ(contentOf(folder.path("a")), contentOf(folder.path("b")));
    EXPECT_NE(contentOf(folder.path("a")), contentOf(folder.path("c")));
}

TEST(SynthesizeCommand, SaysWhyNumbersAreImpossibleAndWritesNothing) {
    const ScratchFolder folder;
    const ToolOutcome outcome = runTool(command("10", "1", "0", "0", folder.path("release.json")));
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.errors.starts_with(
        "openmap-release: a route has at least 2 points, so 1 route point is impossible\n"));
    EXPECT_EQ(folder.count(), 0U);
}

TEST(SynthesizeCommand, ReportsAFolderThatDoesNotExist) {
    const ScratchFolder folder;
    const std::string path = folder.path("missing/release.json");
    const ToolOutcome outcome = runTool(command("1", "0", "0", "0", path));
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "openmap-release: " + path + ": No such file or directory\n");
}

} // namespace
} // namespace vasker
