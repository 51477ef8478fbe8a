#include "map/geometry/Camera.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vasker {
namespace {

constexpr Viewport viewport{960, 712};

void expectShown(const Camera& camera, Coordinate coordinate) {
    const ScreenPoint point = camera.worldToScreen(coordinateToMapPoint(coordinate));
    EXPECT_GE(point.x, -1e-6);
    EXPECT_GE(point.y, -1e-6);
    EXPECT_LE(point.x, camera.viewport().width + 1e-6);
    EXPECT_LE(point.y, camera.viewport().height + 1e-6);
}

TEST(Camera, ShowsAllOfARegionWhateverTheWindowsShape) {
    for (const Viewport shape :
         {Viewport{960, 712}, {579, 568}, {300, 2000}, {4000, 200}, {2240, 1388}}) {
        const Camera camera(canadaOverview, shape);
        expectShown(camera, {64, -132});
        expectShown(camera, {64, -92});
        expectShown(camera, {44, -132});
        expectShown(camera, {44, -92});
    }
}

TEST(Camera, KeepsARegionsCentreInTheMiddleOfTheWindow) {
    const Camera camera(canadaOverview, viewport);
    const ScreenPoint middle = camera.worldToScreen(coordinateToMapPoint({54, -112}));
    EXPECT_NEAR(middle.x, 480, 1e-6);
    EXPECT_NEAR(middle.y, 356, 1e-6);
}

TEST(Camera, ShowsAllOfARectangleAndNoMoreThanItMust) {
    const MapRect rect{1e8, 1e8, 2e6, 1e6};
    const Camera camera(rect, viewport);
    EXPECT_DOUBLE_EQ(camera.scale(), 960 / 2e6);
    EXPECT_EQ(camera.center(), rect.center());
}

TEST(Camera, WhatItShowsResolvesToTheSameCamera) {
    const Camera camera =
        Camera(canadaOverview, viewport).zoomed(7.3, {100, 650}).panned(-33.3, 12.1);
    const Camera again(camera.visibleRect(), viewport);
    EXPECT_NEAR(again.scale() / camera.scale(), 1, 1e-12);
    EXPECT_NEAR(again.center().x, camera.center().x, 1e-6);
    EXPECT_NEAR(again.center().y, camera.center().y, 1e-6);
}

TEST(Camera, KeepsTheCentreWhenTheWindowIsResized) {
    const Camera camera = Camera(canadaOverview, viewport).panned(200, -90);
    const Camera resized(camera.visibleRect(), {579, 568});
    EXPECT_NEAR(resized.center().x, camera.center().x, 1e-6);
    EXPECT_NEAR(resized.center().y, camera.center().y, 1e-6);
}

TEST(Camera, ADragMovesTheGroundWithThePointer) {
    const Camera before(canadaOverview, viewport);
    const MapPoint ground = before.screenToWorld({300, 300});
    const ScreenPoint after = before.panned(40, -25).worldToScreen(ground);
    EXPECT_NEAR(after.x, 340, 1e-6);
    EXPECT_NEAR(after.y, 275, 1e-6);
}

TEST(Camera, ZoomingKeepsTheGroundUnderThePointer) {
    Camera camera(canadaOverview, viewport);
    const ScreenPoint pointer{700, 200};
    const MapPoint ground = camera.screenToWorld(pointer);
    for (int step = 0; step < 40; ++step) {
        camera = camera.zoomed(std::sqrt(2.0), pointer);
        const ScreenPoint now = camera.worldToScreen(ground);
        ASSERT_NEAR(now.x, pointer.x, 1e-4) << step;
        ASSERT_NEAR(now.y, pointer.y, 1e-4) << step;
    }
}

TEST(Camera, StopsAtTheNearestZoomAndWithTheWorldInView) {
    const Camera camera(canadaOverview, viewport);
    EXPECT_DOUBLE_EQ(camera.zoomed(1e9, {1, 1}).scale(), Camera::maximumScale);
    EXPECT_DOUBLE_EQ(camera.zoomed(1e-9, {1, 1}).scale(), 712 / worldSize);
}

TEST(Camera, ARectangleOfOneMapPointIsShownAtTheNearestZoom) {
    const Camera camera(MapRect{5e7, 9e7, 1.3, 1.3}, viewport);
    EXPECT_DOUBLE_EQ(camera.scale(), Camera::maximumScale);
    EXPECT_NEAR(camera.center().x, 5e7 + 0.65, 1e-6);
}

TEST(Camera, TheCentreStaysInTheWorld) {
    const Camera camera = Camera(canadaOverview, viewport).panned(1e9, 1e9);
    EXPECT_EQ(camera.center(), (MapPoint{0, 0}));
}

TEST(Camera, AWishThatIsNoNumberShowsTheOverview) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Camera overview(canadaOverview, viewport);
    EXPECT_EQ(Camera(MapRect{nan, 0, 1, 1}, viewport).center(), overview.center());
    EXPECT_EQ(Camera(CoordinateRegion{{54, -112}, nan, 40}, viewport).scale(), overview.scale());
}

TEST(Camera, AFactorThatIsNotPositiveChangesNothing) {
    const Camera camera(canadaOverview, viewport);
    EXPECT_EQ(camera.zoomed(0, {1, 1}).scale(), camera.scale());
    EXPECT_EQ(camera.zoomed(-3, {1, 1}).scale(), camera.scale());
    EXPECT_EQ(camera.zoomed(std::numeric_limits<double>::quiet_NaN(), {1, 1}).scale(),
              camera.scale());
}

TEST(Camera, AnItemWithoutSizeCountsAsOnePixel) {
    EXPECT_EQ(Camera(canadaOverview, {0, 0}).viewport(), (Viewport{1, 1}));
}

} // namespace
} // namespace vasker
