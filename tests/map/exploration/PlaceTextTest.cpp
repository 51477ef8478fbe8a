#include "map/exploration/PlaceText.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <vector>

namespace vasker {
namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

NearRecord away(double metres, double degrees) {
    return {.asset = 0, .place = {}, .metres = metres, .degrees = degrees};
}

PlaceLabel label(const char* name, double latitude, double longitude, PlaceLabel::Kind kind) {
    return {text(name), coordinateToMapPoint({latitude, longitude}), kind, 1};
}

TEST(PlaceText, AWayIsADistanceAndADirection) {
    EXPECT_EQ(PlaceText::way(12'400, 44), text("12 km north-east"));
    EXPECT_EQ(PlaceText::way(640, 180), text("640 m south"));
    EXPECT_EQ(PlaceText::way(1'234'000, 271), text("1,234 km west"));
    EXPECT_EQ(PlaceText::way(9, 90), text("here"));
}

TEST(PlaceText, ARecordIsItsNameItsCategoryAndItsWay) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.name = "Dunvegan Sour Gas Plant";
    asset.kind = "gas_plant";
    EXPECT_EQ(PlaceText::record(asset, away(12'000, 45)),
              text("Dunvegan Sour Gas Plant, gas plant, 12 km north-east"));
    asset.kind = "lng_plant";
    EXPECT_EQ(PlaceText::record(asset, away(12'000, 45)),
              text("Dunvegan Sour Gas Plant, LNG facility, 12 km north-east"));
}

TEST(PlaceText, AnEmptyCategoryAndAPercentSignInANameDoNoHarm) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.name = "100 %2 of %3";
    asset.kind = "";
    EXPECT_EQ(PlaceText::record(asset, away(12'000, 45)), text("100 %2 of %3, , 12 km north-east"));
    EXPECT_EQ(PlaceText::nearest(asset, away(84'000, 225)),
              text("Nearest: 100 %2 of %3, 84 km south-west"));
}

TEST(PlaceText, TheCentreIsToldFromTheNearestSettlement) {
    const std::vector labels{label("Calgary", 51.0447, -114.0719, PlaceLabel::Kind::city),
                             label("Edmonton", 53.5461, -113.4937, PlaceLabel::Kind::capital),
                             label("ALBERTA", 53.7, -113.4937, PlaceLabel::Kind::region)};
    EXPECT_EQ(PlaceText::center(coordinateToMapPoint({53.7, -113.4937}), labels),
              text("17 km north of Edmonton"));
    EXPECT_EQ(PlaceText::center(coordinateToMapPoint({51.045, -114.072}), labels), text("Calgary"));
}

TEST(PlaceText, WithoutASettlementTheCentreIsToldInDegrees) {
    const std::vector labels{label("ALBERTA", 53.7, -113.5, PlaceLabel::Kind::region)};
    EXPECT_EQ(PlaceText::center(coordinateToMapPoint({53.74, -113.5}), labels),
              text("53.7 degrees north, 113.5 degrees west"));
    EXPECT_EQ(PlaceText::center(coordinateToMapPoint({-10, 20.04}), {}),
              text("10.0 degrees south, 20.0 degrees east"));
    EXPECT_EQ(PlaceText::center({worldSize / 2, worldSize / 2}, {}),
              text("0.0 degrees north, 0.0 degrees east"));
}

TEST(PlaceText, TheNumberInViewIsTold) {
    EXPECT_EQ(PlaceText::inView(34), text("34 records in view"));
    EXPECT_EQ(PlaceText::inView(0), text("no record in view"));
}

} // namespace
} // namespace vasker
