#include "map/geometry/Projection.h"

#include <gtest/gtest.h>

#include <numbers>

namespace vasker {
namespace {

TEST(Projection, TheNorthWestCornerOfTheWorldIsTheOrigin) {
    const MapPoint corner = coordinateToMapPoint({maximumLatitude, -180});
    EXPECT_NEAR(corner.x, 0, 1e-6);
    EXPECT_NEAR(corner.y, 0, 1e-6);
}

TEST(Projection, TheEquatorAtGreenwichIsTheMiddle) {
    const MapPoint middle = coordinateToMapPoint({0, 0});
    EXPECT_DOUBLE_EQ(middle.x, 134'217'728);
    EXPECT_DOUBLE_EQ(middle.y, 134'217'728);
}

TEST(Projection, ALatitudeIsStretchedAsMercatorStretchesIt) {
    // ln(tan(pi/4 + 60 degrees / 2)) = ln(2 + sqrt(3)) = 1.3169578969248167
    const MapPoint point = coordinateToMapPoint({60, 0});
    EXPECT_NEAR(point.y, 134'217'728 * (1 - 1.3169578969248167 / std::numbers::pi), 1e-6);
}

TEST(Projection, ACoordinateReturnsFromTheMapUnchanged) {
    for (const Coordinate coordinate :
         {Coordinate{54, -112}, {-33.5, 151.2}, {0, 0}, {70.256, -61.295}, {85, 179.999999}}) {
        const Coordinate back = mapPointToCoordinate(coordinateToMapPoint(coordinate));
        EXPECT_NEAR(back.latitude, coordinate.latitude, 1e-9);
        EXPECT_NEAR(back.longitude, coordinate.longitude, 1e-9);
    }
}

TEST(Projection, ThePolesAreDrawnAtTheWorldsEdge) {
    EXPECT_NEAR(coordinateToMapPoint({90, 0}).y, 0, 1e-6);
    EXPECT_NEAR(coordinateToMapPoint({-90, 0}).y, worldSize, 1e-6);
}

} // namespace
} // namespace vasker
