#include "tools/openmap-release/FileAccess.h"

#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace vasker {
namespace {

TEST(FileAccess, ReadsNoMoreThanTheLimit) {
    const ScratchFolder folder;
    const std::string path = folder.write("file", "0123456789");
    EXPECT_EQ(readFile(path, 4), "0123");
    EXPECT_EQ(readFile(path, 10), "0123456789");
    EXPECT_EQ(readFile(path, 100), "0123456789");
}

TEST(FileAccess, ReplacesFilesAndLeavesNothingBeside) {
    const ScratchFolder folder;
    const std::string former = folder.write("a", "former");
    const std::string fresh = folder.path("b");
    writeFiles(std::array{FileContent{former, "one"}, FileContent{fresh, "two"}});
    EXPECT_EQ(contentOf(former), "one");
    EXPECT_EQ(contentOf(fresh), "two");
    EXPECT_EQ(folder.count(), 2U);
}

TEST(FileAccess, WritesNothingWhereOneFileCannotBePrepared) {
    const ScratchFolder folder;
    const std::string former = folder.write("a", "former");
    EXPECT_THROW(writeFiles(std::array{FileContent{former, "one"},
                                       FileContent{folder.path("missing/b"), "two"}}),
                 FileError);
    EXPECT_EQ(contentOf(former), "former");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileAccess, MovesTheFirstFileBackWhereTheSecondCannotBeMoved) {
    const ScratchFolder folder;
    const std::string former = folder.write("a", "former");
    const std::string fresh = folder.path("b");
    // A device passes the preparation and fails only when it is written to.
    EXPECT_THROW(writeFiles(std::array{FileContent{former, "one"},
                                       FileContent{fresh, "two"},
                                       FileContent{"/dev/full", "three"}}),
                 FileError);
    EXPECT_EQ(contentOf(former), "former");
    EXPECT_FALSE(std::filesystem::exists(fresh));
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileAccess, FollowsASymbolicLink) {
    const ScratchFolder folder;
    const std::string target = folder.write("target", "former");
    std::filesystem::create_symlink(target, folder.path("link"));
    writeFiles(std::array{FileContent{folder.path("link"), "new"}});
    EXPECT_EQ(contentOf(target), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
}

} // namespace
} // namespace vasker
