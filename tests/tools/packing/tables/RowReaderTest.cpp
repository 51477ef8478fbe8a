#include "tools/openmap-release/packing/tables/RowReader.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(RowReader, APositionNeedsBothCoordinatesAndIsNotZeroZero) {
    const CsvTable table("t.csv", "lat,lon\n50,-110\n0,0\n,-110\n0,-110\n");
    const auto position = [&](std::size_t row) {
        return RowReader(table, table.rows()[row]).position("lat", "lon");
    };
    EXPECT_EQ(position(0), (OpenMapRelease::Position{-110, 50}));
    EXPECT_EQ(position(1), std::nullopt);
    EXPECT_EQ(position(2), std::nullopt);
    EXPECT_EQ(position(3), (OpenMapRelease::Position{-110, 0}));
}

TEST(RowReader, JoinedPartsDoNotRepeat) {
    const CsvTable table("t.csv", "a,b,c\nQuebec,Quebec,Canada\n,,\n");
    EXPECT_EQ(RowReader(table, table.rows()[0]).joined({"a", "b", "c"}), "Quebec, Canada");
    EXPECT_EQ(RowReader(table, table.rows()[1]).joined({"a", "b", "c"}), std::nullopt);
}

TEST(RowReader, AProvinceIsNamedInFullOrByItsCode) {
    const CsvTable table("t.csv", "p\nAB\nQuebec\nXX\n");
    const auto province = [&](std::size_t row) {
        return RowReader(table, table.rows()[row]).requiredProvince("p");
    };
    EXPECT_EQ(province(0), "Alberta");
    EXPECT_EQ(province(1), "Quebec");
    EXPECT_THROW((void)province(2), InputError);
}

TEST(RowReader, AYearHasFourDigitsOfOurTime) {
    const CsvTable table("t.csv", "y\n2022\n22\n20222\n99999999999999999999\n");
    const auto year = [&](std::size_t row) {
        return RowReader(table, table.rows()[row]).requiredYear("y");
    };
    EXPECT_EQ(year(0), 2022);
    EXPECT_THROW((void)year(1), InputError);
    EXPECT_THROW((void)year(2), InputError);
    EXPECT_THROW((void)year(3), InputError);
}

} // namespace
} // namespace vasker
