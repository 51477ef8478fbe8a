#include "tools/openmap-release/packing/tables/Cells.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Cells, EmptyCellsSayNothing) {
    for (const std::string_view cell : {"", "  ", "n/a", " N/A ", "--", "\u200B", "\u00A0"}) {
        EXPECT_EQ(publishedText(cell), std::nullopt) << cell;
    }
}

TEST(Cells, PublishedTextStaysAsItIsButForInvisibleCharacters) {
    EXPECT_EQ(publishedText(" Énergie  Saguenay "), "Énergie  Saguenay");
    EXPECT_EQ(publishedText("Willis\u200Bton"), "Williston");
    EXPECT_EQ(publishedText("unknown [unknown %]"), "unknown [unknown %]");
}

TEST(Cells, NumbersAreGroupedByThousands) {
    EXPECT_EQ(groupedNumber("450,000.00"), "450,000");
    EXPECT_EQ(groupedNumber("14676"), "14,676");
    EXPECT_EQ(groupedNumber("3300000000"), "3,300,000,000");
    EXPECT_EQ(groupedNumber("0.50"), "0.5");
    EXPECT_EQ(groupedNumber("999"), "999");
    EXPECT_EQ(groupedNumber("0"), "0");
    for (const std::string_view text : {"", "12-14", "1.2.3", "5.", "-3", "1e3", "many"}) {
        EXPECT_EQ(groupedNumber(text), std::nullopt) << text;
    }
}

TEST(Cells, WordsForNoPlaceNameNone) {
    for (const std::string_view cell : {"na", "NA", "N/a", "n/a", "-", "None", "UNKNOWN", " "}) {
        EXPECT_EQ(placeName(cell), std::nullopt) << cell;
    }
    EXPECT_EQ(placeName(" Nakina "), "Nakina");
    EXPECT_EQ(placeName("Na-Na"), "Na-Na");
}

TEST(Cells, NamesAreTheSameButForLetterCaseFullStopsAndBlanks) {
    EXPECT_TRUE(isSameName("Énergie Inc.", "énergie  INC"));
    EXPECT_TRUE(isSameName("C.N.R.L. ", " CNRL"));
    EXPECT_FALSE(isSameName("Énergie", "Energie"));
    EXPECT_FALSE(isSameName("Comp Stn 1-2", "Comp Stn 12"));
    EXPECT_FALSE(isSameName("Larch Oil, Ltd.", "Larch Oil Ltd."));
    EXPECT_FALSE(isSameName("Larch Oil", "LarchOil"));
}

} // namespace
} // namespace vasker
