#include "map/records/Framing.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Framing, AFacilityIsFramedByTwoFifthsByThreeFifthsOfADegree) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.latitude = 51.5;
    asset.longitude = -114.25;
    EXPECT_EQ(std::get<CoordinateRegion>(framing(asset)),
              (CoordinateRegion{{51.5, -114.25}, 0.4, 0.6}));
}

TEST(Framing, ARouteIsFramedByItsBoundsAndFifteenPercentOnEverySide) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.routes = {{{-120, 50}, {-110, 55}}, {{-115, 48}, {-112, 49}}};
    const MapRect rect = std::get<MapRect>(framing(asset));
    const MapPoint northWest = coordinateToMapPoint({55, -120});
    const MapPoint southEast = coordinateToMapPoint({48, -110});
    const double width = southEast.x + 1 - northWest.x;
    const double height = southEast.y + 1 - northWest.y;
    EXPECT_NEAR(rect.x, northWest.x - 0.15 * width, 1e-6);
    EXPECT_NEAR(rect.y, northWest.y - 0.15 * height, 1e-6);
    EXPECT_NEAR(rect.width, 1.3 * width, 1e-6);
    EXPECT_NEAR(rect.height, 1.3 * height, 1e-6);
}

TEST(Framing, ARouteOfASinglePositionIsFramedByOneMapPointAndItsMargin) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.routes = {{{-120, 50}}};
    const MapRect rect = std::get<MapRect>(framing(asset));
    EXPECT_NEAR(rect.width, 1.3, 1e-7);
    EXPECT_NEAR(rect.height, 1.3, 1e-7);
}

TEST(Framing, ARecordWithoutAnyVertexIsFramedByItsPoint) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.routes = {{}, {}};
    EXPECT_TRUE(asset.hasRoute());
    EXPECT_TRUE(std::holds_alternative<CoordinateRegion>(framing(asset)));
}

} // namespace
} // namespace vasker
