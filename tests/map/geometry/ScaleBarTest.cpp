#include "map/geometry/ScaleBar.h"

#include "tests/map/geometry/MapViewport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace vasker {
namespace {

Camera cameraAt(double latitude, double scale, double bearing = 0, double pitch = 0) {
    return {CameraPose{coordinateToMapPoint({latitude, -112}), scale, bearing, pitch}, viewport};
}

TEST(ScaleBar, AtTheEquatorAMapPointIsFifteenCentimetres) {
    EXPECT_NEAR(metresPerPixel(cameraAt(0, 1)), 0.149291, 1e-6); // 40,075,016.69 m / 2^28
}

TEST(ScaleBar, AtSixtyDegreesTheSamePixelIsHalfAsFar) {
    EXPECT_NEAR(metresPerPixel(cameraAt(60, 0.01)), metresPerPixel(cameraAt(0, 0.01)) / 2, 1e-6);
}

TEST(ScaleBar, AgreesWithTheGreatCircleAcrossTheScreen) {
    for (const double bearing : {0.0, 90.0, 200.0}) {
        const Camera camera = cameraAt(54, 0.02, bearing, 50);
        const ScaleBar bar = scaleBar(camera);
        const ScreenPoint middle = camera.focus();
        const Coordinate from =
            mapPointToCoordinate(camera.screenToWorld({middle.x - bar.pixels / 2, middle.y}));
        const Coordinate to =
            mapPointToCoordinate(camera.screenToWorld({middle.x + bar.pixels / 2, middle.y}));
        const double radian = std::acos(-1.0) / 180;
        const double a = from.latitude * radian;
        const double b = to.latitude * radian;
        const double across = (to.longitude - from.longitude) * radian;
        const double haversine = std::pow(std::sin((b - a) / 2), 2) +
                                 std::cos(a) * std::cos(b) * std::pow(std::sin(across / 2), 2);
        EXPECT_NEAR(2 * 6'378'137 * std::asin(std::sqrt(haversine)) / bar.metres, 1, 1e-4);
    }
}

TEST(ScaleBar, IsRoundAndAsLongAsThereIsRoom) {
    std::set<int> steps;
    for (double scale = 3e-6; scale <= Camera::maximumScale; scale *= 1.07) {
        const Camera camera = cameraAt(54, scale);
        const ScaleBar bar = scaleBar(camera);
        EXPECT_LE(bar.pixels, 150 + 1e-9);
        EXPECT_GE(bar.pixels, 59); // 2 of nearly 5
        EXPECT_NEAR(bar.pixels * metresPerPixel(camera), bar.metres, 1e-9 * bar.metres);
        const double power = std::pow(10, std::floor(std::log10(bar.metres) + 1e-9));
        steps.insert(static_cast<int>(std::lround(bar.metres / power)));
    }
    EXPECT_EQ(steps, (std::set{1, 2, 5}));
}

TEST(ScaleBar, TheOverviewIsMeasuredInHundredsOfKilometres) {
    EXPECT_DOUBLE_EQ(scaleBar(Camera(canadaOverview, viewport)).metres,
                     500'000); // 150 px: 536 km
}

TEST(ScaleBar, AtThePolesEdgeItIsStillANumber) {
    const ScaleBar bar = scaleBar(cameraAt(90, 1e-3));
    EXPECT_GT(bar.metres, 0);
    EXPECT_LE(bar.pixels, 150 + 1e-9);
}

} // namespace
} // namespace vasker
