#include "map/geometry/GreatCircle.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

constexpr Coordinate edmonton{53.5461, -113.4937};
constexpr Coordinate calgary{51.0447, -114.0719};

TEST(GreatCircle, ADegreeOfLatitudeIsAHundredAndElevenKilometres) {
    EXPECT_NEAR(distanceMetres({50, -110}, {51, -110}), 111'195, 1);
    EXPECT_NEAR(distanceMetres({0, 10}, {0, 11}), 111'195, 1);
}

TEST(GreatCircle, DistancesAreThoseOfTheAtlas) {
    EXPECT_NEAR(distanceMetres(edmonton, calgary), 280'900, 500);
    EXPECT_DOUBLE_EQ(distanceMetres(edmonton, calgary), distanceMetres(calgary, edmonton));
    EXPECT_EQ(distanceMetres(edmonton, edmonton), 0);
}

TEST(GreatCircle, TheDateLineIsNoDetour) {
    EXPECT_NEAR(distanceMetres({0, 179.5}, {0, -179.5}), 111'195, 1);
    EXPECT_NEAR(bearingDegrees({0, 179.5}, {0, -179.5}), 90, 1e-9);
    EXPECT_NEAR(distanceMetres({0, 179.5}, {0, 180.5}), 111'195, 1);
}

TEST(GreatCircle, AntipodesAreHalfTheEarthApart) {
    EXPECT_NEAR(distanceMetres({0, 0}, {0, 180}), 20'015'115, 1);
}

TEST(GreatCircle, BearingsGoClockwiseFromNorth) {
    EXPECT_NEAR(bearingDegrees({50, -110}, {51, -110}), 0, 1e-9);
    EXPECT_NEAR(bearingDegrees({0, 10}, {0, 11}), 90, 1e-9);
    EXPECT_NEAR(bearingDegrees({50, -110}, {49, -110}), 180, 1e-9);
    EXPECT_NEAR(bearingDegrees({0, 10}, {0, 9}), 270, 1e-9);
    EXPECT_NEAR(bearingDegrees({0, 10}, {1, 10.01}), 0.57, 0.01);
    EXPECT_NEAR(bearingDegrees({0, 10}, {1, 9.99}), 359.43, 0.01);
    EXPECT_NEAR(bearingDegrees(edmonton, calgary), 188.2, 0.2);
    EXPECT_EQ(bearingDegrees(edmonton, edmonton), 0);
}

TEST(GreatCircle, ADirectionIsTheNearestOfEight) {
    EXPECT_EQ(compassPoint(0), CompassPoint::north);
    EXPECT_EQ(compassPoint(22.4), CompassPoint::north);
    EXPECT_EQ(compassPoint(22.5), CompassPoint::northEast);
    EXPECT_EQ(compassPoint(90), CompassPoint::east);
    EXPECT_EQ(compassPoint(135), CompassPoint::southEast);
    EXPECT_EQ(compassPoint(188), CompassPoint::south);
    EXPECT_EQ(compassPoint(225), CompassPoint::southWest);
    EXPECT_EQ(compassPoint(270), CompassPoint::west);
    EXPECT_EQ(compassPoint(337.4), CompassPoint::northWest);
    EXPECT_EQ(compassPoint(337.5), CompassPoint::north);
    EXPECT_EQ(compassPoint(-90), CompassPoint::west);
    EXPECT_EQ(compassPoint(720 + 45), CompassPoint::northEast);
}

} // namespace
} // namespace vasker
