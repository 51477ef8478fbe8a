#include "data/text/Beginning.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Beginning, IsTheTextWhereItFits) {
    EXPECT_EQ(beginningOf("", 0), "");
    EXPECT_EQ(beginningOf("gas", 3), "gas");
    EXPECT_EQ(beginningOf("gas", 100), "gas");
}

TEST(Beginning, CutsNoCodePointInTwo) {
    EXPECT_EQ(beginningOf("gas", 2), "ga");
    EXPECT_EQ(beginningOf("a\u00e9", 2), "a");
    EXPECT_EQ(beginningOf("a\u00e9b", 3), "a\u00e9");
    EXPECT_EQ(beginningOf("\U0001F6E2", 3), "");
    EXPECT_EQ(beginningOf("\U0001F6E2", 4), "\U0001F6E2");
}

} // namespace
} // namespace vasker
