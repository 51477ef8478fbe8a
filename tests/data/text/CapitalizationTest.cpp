#include "data/text/Capitalization.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Capitalized, EveryWordBeginsWithACapitalAndGoesOnInSmallLetters) {
    EXPECT_EQ(capitalized("compressor_station"), "Compressor_station");
    EXPECT_EQ(capitalized("LNG"), "Lng");
    EXPECT_EQ(capitalized("gas plant\tNORTH"), "Gas Plant\tNorth");
    EXPECT_EQ(capitalized("o'brien-SMITH 2nd"), "O'brien-smith 2nd");
    EXPECT_EQ(capitalized("\u00E9TAPE"), "\u00C9tape");
}

TEST(Capitalized, WhitespaceStaysAsItIs) {
    EXPECT_EQ(capitalized(""), "");
    EXPECT_EQ(capitalized("  a\u00A0b\u3000c \n"), "  A\u00A0B\u3000C \n");
}

TEST(Capitalized, LettersMayGrow) {
    EXPECT_EQ(capitalized("\u00DFA"), "Ssa");
    EXPECT_EQ(capitalized("\uFB03"), "Ffi");
    EXPECT_EQ(capitalized("\u01C6"), "\u01C5"); // a title-case letter
}

} // namespace
} // namespace vasker
