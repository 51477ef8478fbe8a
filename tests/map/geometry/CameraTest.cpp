#include "map/geometry/Camera.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vasker {
namespace {

constexpr Viewport uncovered{960, 712};

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

TEST(Camera, ShowsAllOfARegionAndOfARectangleInThePartThatNothingCovers) {
    const MapRect wide{1e8, 1.1e8, 9e6, 1e5};
    const MapRect tall{1e8, 0.9e8, 2e4, 7e6};
    for (const Viewport shape : {Viewport{960, 748, 36, 0},
                                 {579, 568, 52, 0},
                                 {300, 2000, 400, 100},
                                 {4000, 200, 150, 900},
                                 {2240, 1388, 36, 420},
                                 {579, 568, 52, 0, 255},
                                 {900, 568, 52, 200, 300}}) {
        for (const CameraPosition& position :
             {CameraPosition(canadaOverview), CameraPosition(wide), CameraPosition(tall)}) {
            const Camera camera(position, shape);
            std::vector<MapPoint> corners;
            if (const auto* rect = std::get_if<MapRect>(&position)) {
                corners = {{rect->x, rect->y}, {rect->x + rect->width, rect->y + rect->height}};
            } else {
                corners = {coordinateToMapPoint({64, -132}), coordinateToMapPoint({44, -92})};
            }
            for (const MapPoint corner : corners) {
                const ScreenPoint point = camera.worldToScreen(corner);
                EXPECT_GE(point.x, shape.coveredLeft - 1e-6);
                EXPECT_GE(point.y, -1e-6);
                EXPECT_LE(point.x, shape.width - shape.coveredRight + 1e-6);
                EXPECT_LE(point.y, shape.height - shape.coveredBelow + 1e-6);
            }
        }
    }
}

TEST(Camera, ShowsTheWholeWorldInTheNarrowestWindow) {
    const Camera camera(MapRect{0, 0, worldSize, worldSize}, {90, 2000, 100, 20});
    EXPECT_NEAR(camera.worldToScreen({0, 0}).x, 0, 1e-6);
    EXPECT_NEAR(camera.worldToScreen({worldSize, worldSize}).x, 70, 1e-6);
}

TEST(Camera, StandsInTheMiddleOfWhatIsFreeBetweenBothEdges) {
    const Camera camera(canadaOverview, {900, 568, 0, 200, 300});
    EXPECT_EQ(camera.focus(), (ScreenPoint{500, 284}));
}

TEST(Camera, MarginsThatCoverEverythingLeaveAPixel) {
    const Camera camera(canadaOverview, {400, 300, 500, 1e9});
    EXPECT_EQ(camera.focus(), (ScreenPoint{0.5, 0.5}));
    EXPECT_GT(camera.scale(), 0);
    EXPECT_EQ(Camera(canadaOverview, {400, 300, 0, 300, 500}).focus(), (ScreenPoint{99.5, 150}));
}

TEST(Camera, KeepsARegionsCentreInTheMiddleOfTheWindow) {
    const Camera camera(canadaOverview, uncovered);
    const ScreenPoint middle = camera.worldToScreen(coordinateToMapPoint({54, -112}));
    EXPECT_NEAR(middle.x, 480, 1e-6);
    EXPECT_NEAR(middle.y, 356, 1e-6);
}

TEST(Camera, ShowsAllOfARectangleAndNoMoreThanItMust) {
    const MapRect rect{1e8, 1e8, 2e6, 1e6};
    const Camera camera(rect, uncovered);
    EXPECT_DOUBLE_EQ(camera.scale(), 960 / 2e6);
    EXPECT_EQ(camera.center(), rect.center());
}

TEST(Camera, WhatItShowsResolvesToTheSameCamera) {
    const Camera camera =
        Camera(canadaOverview, uncovered).zoomed(7.3, {100, 650}).dragged({0, 0}, {-33.3, 12.1});
    const Camera again(camera.pose(), uncovered);
    EXPECT_NEAR(again.scale() / camera.scale(), 1, 1e-12);
    EXPECT_NEAR(again.center().x, camera.center().x, 1e-6);
    EXPECT_NEAR(again.center().y, camera.center().y, 1e-6);
}

TEST(Camera, KeepsTheCentreWhenTheWindowIsResized) {
    const Camera camera = Camera(canadaOverview, uncovered).dragged({0, 0}, {200, -90});
    const Camera resized(camera.pose(), {579, 568});
    EXPECT_NEAR(resized.center().x, camera.center().x, 1e-6);
    EXPECT_NEAR(resized.center().y, camera.center().y, 1e-6);
}

TEST(Camera, ADragMovesTheMapWithThePointer) {
    const Camera before(canadaOverview, uncovered);
    const MapPoint below = before.screenToWorld({300, 300});
    const ScreenPoint after = before.dragged({0, 0}, {40, -25}).worldToScreen(below);
    EXPECT_NEAR(after.x, 340, 1e-6);
    EXPECT_NEAR(after.y, 275, 1e-6);
}

TEST(Camera, ZoomingKeepsThePlaceUnderThePointer) {
    Camera camera(canadaOverview, uncovered);
    const ScreenPoint pointer{700, 200};
    const MapPoint below = camera.screenToWorld(pointer);
    for (int step = 0; step < 40; ++step) {
        camera = camera.zoomed(std::sqrt(2.0), pointer);
        const ScreenPoint now = camera.worldToScreen(below);
        ASSERT_NEAR(now.x, pointer.x, 1e-4) << step;
        ASSERT_NEAR(now.y, pointer.y, 1e-4) << step;
    }
}

TEST(Camera, StopsAtTheNearestZoomAndWithTheWorldInView) {
    const Camera camera(canadaOverview, uncovered);
    EXPECT_DOUBLE_EQ(camera.zoomed(1e9, {1, 1}).scale(), Camera::maximumScale);
    EXPECT_DOUBLE_EQ(camera.zoomed(1e-9, {1, 1}).scale(), 712 / worldSize);
}

TEST(Camera, ARectangleOfOneMapPointIsShownAtTheNearestZoom) {
    const Camera camera(MapRect{5e7, 9e7, 1.3, 1.3}, uncovered);
    EXPECT_DOUBLE_EQ(camera.scale(), Camera::maximumScale);
    EXPECT_NEAR(camera.center().x, 5e7 + 0.65, 1e-6);
}

TEST(Camera, TheCentreStaysInTheWorld) {
    const Camera camera = Camera(canadaOverview, uncovered).dragged({0, 0}, {0, 1e9});
    EXPECT_EQ(camera.center().y, 0);
}

TEST(Camera, AWishThatIsNoNumberShowsTheOverview) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Camera overview(canadaOverview, uncovered);
    EXPECT_EQ(Camera(MapRect{nan, 0, 1, 1}, uncovered).center(), overview.center());
    EXPECT_EQ(Camera(CoordinateRegion{{54, -112}, nan, 40}, uncovered).scale(), overview.scale());
}

TEST(Camera, APoseThatIsNoNumberShowsTheOverview) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const Camera overview(canadaOverview, uncovered);
    for (const CameraPose& pose : {CameraPose{{nan, 1e8}, 1e-5},
                                   {{1e8, infinity}, 1e-5},
                                   {{1e8, 1e8}, nan},
                                   {{1e8, 1e8}, 1e-5, -infinity, 0},
                                   {{1e8, 1e8}, 1e-5, 0, nan}}) {
        EXPECT_EQ(Camera(pose, uncovered).pose(), overview.pose());
    }
}

TEST(Camera, ARegionTooFarOutToBeProjectedShowsTheOverview) {
    const Camera overview(canadaOverview, uncovered);
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(Camera(CoordinateRegion{{54, largest}, 20, 40}, uncovered).pose(), overview.pose());
    EXPECT_EQ(Camera(MapRect{largest, 0, largest, 1}, uncovered).pose(), overview.pose());
}

TEST(Camera, APoseIsBroughtIntoItsRanges) {
    const CameraPose pose =
        Camera(CameraPose{{-1.0, 2 * worldSize}, 99, -90, 75}, uncovered).pose();
    EXPECT_EQ(pose.center, (MapPoint{worldSize - 1, worldSize}));
    EXPECT_EQ(pose.scale, Camera::maximumScale);
    EXPECT_EQ(pose.bearing, 270);
    EXPECT_EQ(pose.pitch, Camera::maximumPitch);
    for (const double x : {-1e-20, -0.0, worldSize, 1e300, -1e300}) {
        const double normalized = Camera(CameraPose{{x, 1e8}, 1}, uncovered).center().x;
        EXPECT_GE(normalized, 0) << x;
        EXPECT_LT(normalized, worldSize) << x;
    }
    for (const double bearing : {-1e-20, 360.0, 720.0, 1e300}) {
        const double normalized = Camera(CameraPose{{1, 1}, 1, bearing}, uncovered).pose().bearing;
        EXPECT_GE(normalized, 0) << bearing;
        EXPECT_LT(normalized, 360) << bearing;
    }
}

TEST(Camera, AFactorThatIsNotPositiveChangesNothing) {
    const Camera camera(canadaOverview, uncovered);
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
