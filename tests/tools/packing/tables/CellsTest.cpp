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

TEST(Cells, APositionNeedsBothCoordinatesAndIsNotZeroZero) {
    const CsvTable table("t.csv", "lat,lon\n50,-110\n0,0\n,-110\n0,-110\n");
    const auto position = [&](std::size_t row) {
        return RowReader(table, table.rows()[row]).position("lat", "lon");
    };
    EXPECT_EQ(position(0), (OpenMapRelease::Position{-110, 50}));
    EXPECT_EQ(position(1), std::nullopt);
    EXPECT_EQ(position(2), std::nullopt);
    EXPECT_EQ(position(3), (OpenMapRelease::Position{-110, 0}));
}

TEST(Cells, JoinedPartsDoNotRepeat) {
    const CsvTable table("t.csv", "a,b,c\nQuebec,Quebec,Canada\n,,\n");
    EXPECT_EQ(RowReader(table, table.rows()[0]).joined({"a", "b", "c"}), "Quebec, Canada");
    EXPECT_EQ(RowReader(table, table.rows()[1]).joined({"a", "b", "c"}), std::nullopt);
}

} // namespace
} // namespace vasker
