#include "data/text/CodePointOrder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

bool precedes(std::string_view a, std::string_view b) {
    return codePointSortKey(a) < codePointSortKey(b);
}

TEST(CodePointOrder, CapitalsComeBeforeSmallLetters) {
    EXPECT_TRUE(precedes("Zebra", "apple"));
    EXPECT_TRUE(precedes("Plant 10", "Plant 2"));
    EXPECT_TRUE(precedes("", "a"));
    EXPECT_FALSE(precedes("a", "a"));
}

TEST(CodePointOrder, ComposedFormsAreCompared) {
    EXPECT_FALSE(precedes("\u00E9", "e\u0301"));
    EXPECT_FALSE(precedes("e\u0301", "\u00E9"));
    EXPECT_TRUE(precedes("f", "e\u0301"));
    EXPECT_TRUE(precedes("\uFF41", "\U0001F600")); // not the order of UTF-16
}

} // namespace
} // namespace vasker
