// The camera rotated, tilted and moved.

#include "map/geometry/Camera.h"
#include "tests/map/geometry/MapViewport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vasker {
namespace {

constexpr ScreenPoint places[] = {{480, 356}, {3, 2}, {955, 4}, {120, 700}, {900, 640}};

CameraPose poseOf(double bearing, double pitch) {
    return {coordinateToMapPoint({54, -112}), 3e-4, bearing, pitch};
}

/// Calls `check` with a camera of every bearing and pitch.
template <typename Check>
void forEveryCamera(Check check) {
    for (double bearing = 0; bearing < 360; bearing += 30) {
        for (double pitch = 0; pitch <= Camera::maximumPitch; pitch += 15) {
            SCOPED_TRACE(testing::Message() << "bearing " << bearing << ", pitch " << pitch);
            check(Camera(poseOf(bearing, pitch), viewport));
        }
    }
}

void expectAt(ScreenPoint point, ScreenPoint expected, double tolerance = 1e-6) {
    EXPECT_NEAR(point.x, expected.x, tolerance);
    EXPECT_NEAR(point.y, expected.y, tolerance);
}

TEST(CameraMoves, ScreenAndMapAgreeUnderEveryBearingAndPitch) {
    forEveryCamera([](const Camera& camera) {
        for (const ScreenPoint place : places) {
            expectAt(camera.worldToScreen(camera.screenToWorld(place)), place);
        }
        expectAt(camera.worldToScreen(camera.center()), camera.focus());
    });
}

TEST(CameraMoves, EastIsUpWhenTheBearingIsEast) {
    const Camera camera(poseOf(90, 0), viewport);
    const MapPoint center = camera.center();
    expectAt(camera.worldToScreen({center.x + 1e5, center.y}), {480, 356 - 30});
    expectAt(camera.worldToScreen({center.x, center.y + 1e5}), {480 + 30, 356});
}

TEST(CameraMoves, UnderAPitchWhatIsFartherIsSmallerAndHigher) {
    const Camera camera(poseOf(0, 60), viewport);
    const MapPoint center = camera.center();
    const double height = 1e5 * 3e-4; // 30 px on the map
    const double far = 1 + height * std::sin(60 * std::acos(-1.0) / 180) / (1.5 * 748);
    expectAt(camera.worldToScreen({center.x + 1e5, center.y - 1e5}),
             {480 + height / far, 356 - height / 2 / far});
}

TEST(CameraMoves, ADragKeepsThePlaceUnderThePointer) {
    forEveryCamera([](const Camera& camera) {
        const MapPoint below = camera.screenToWorld({300, 200});
        const Camera after = camera.dragged({300, 200}, {415, 322});
        expectAt(after.worldToScreen(below), {415, 322});
        EXPECT_EQ(after.pose().bearing, camera.pose().bearing);
        EXPECT_EQ(after.pose().pitch, camera.pose().pitch);
    });
}

TEST(CameraMoves, APanMovesTheMapAgainstIt) {
    forEveryCamera([](const Camera& camera) {
        const ScreenPoint before = camera.focus();
        const Camera after = camera.panned(40, 0);
        expectAt(after.worldToScreen(camera.center()), {before.x - 40, before.y});
        EXPECT_LT(camera.panned(0, 40).worldToScreen(camera.center()).y, before.y);
    });
}

TEST(CameraMoves, ZoomingKeepsThePlaceUnderThePointer) {
    forEveryCamera([](const Camera& camera) {
        for (const ScreenPoint place : places) {
            const MapPoint below = camera.screenToWorld(place);
            const Camera after = camera.zoomed(1.7, place);
            expectAt(after.worldToScreen(below), place);
            EXPECT_DOUBLE_EQ(after.scale(), 1.7 * camera.scale());
        }
    });
}

TEST(CameraMoves, RotatingKeepsThePlaceUnderThePointer) {
    forEveryCamera([](const Camera& camera) {
        for (const ScreenPoint place : places) {
            const MapPoint below = camera.screenToWorld(place);
            expectAt(camera.rotated(-47, place).worldToScreen(below), place);
        }
    });
}

TEST(CameraMoves, TiltingStopsFlatAndAtTheSteepest) {
    const Camera camera(poseOf(30, 20), viewport);
    EXPECT_DOUBLE_EQ(camera.tilted(25).pose().pitch, 45);
    EXPECT_DOUBLE_EQ(camera.tilted(100).pose().pitch, Camera::maximumPitch);
    EXPECT_TRUE(camera.tilted(-100).isFlat());
    EXPECT_EQ(camera.tilted(25).center(), camera.center());
}

TEST(CameraMoves, OnlyNorthUpAndFlatIsUpright) {
    EXPECT_TRUE(Camera(poseOf(0, 0), viewport).isUpright());
    EXPECT_TRUE(Camera(poseOf(360, 0), viewport).isUpright());
    EXPECT_FALSE(Camera(poseOf(0.5, 0), viewport).isUpright());
    EXPECT_FALSE(Camera(poseOf(0, 0.5), viewport).isUpright());
}

// Over the date line in steps: each frame the map moves as much as in the one before.
void expectSmoothDragAcrossTheDateLine(double longitude, double stepPixels) {
    Camera camera(CameraPose{coordinateToMapPoint({54, longitude}), 3e-5, 20, 30}, viewport);
    int crossings = 0;
    for (int step = 0; step < 40; ++step) {
        const MapPoint below = camera.screenToWorld({480, 300});
        const Camera next = camera.dragged({480, 300}, {480 + stepPixels, 300});
        const double shift = next.center().x - camera.center().x;
        crossings += std::abs(shift) > worldSize / 2 ? 1 : 0;
        EXPECT_GE(next.center().x, 0);
        EXPECT_LT(next.center().x, worldSize);
        // In the copy of the world that the camera has come into.
        const double copy = std::round(shift / worldSize) * worldSize;
        expectAt(next.worldToScreen({below.x + copy, below.y}), {480 + stepPixels, 300});
        EXPECT_NEAR(next.center().y - camera.center().y, 0, std::abs(stepPixels) / 3e-5);
        camera = next;
    }
    EXPECT_EQ(crossings, 1);
}

TEST(CameraMoves, ADragEastCrossesTheDateLineWithoutABreak) {
    expectSmoothDragAcrossTheDateLine(179.8, -8);
}

TEST(CameraMoves, ADragWestCrossesTheDateLineWithoutABreak) {
    expectSmoothDragAcrossTheDateLine(-179.8, 8);
}

TEST(CameraMoves, ZoomingOutAndInAtTheDateLineComesBack) {
    const Camera camera(CameraPose{{worldSize - 1e4, 1e8}, 3e-4}, viewport);
    const ScreenPoint overTheLine{800, 300};
    EXPECT_GT(camera.screenToWorld(overTheLine).x, worldSize);
    const Camera again = camera.zoomed(0.25, overTheLine).zoomed(4, overTheLine);
    EXPECT_NEAR(again.center().x, camera.center().x, 1e-3);
    EXPECT_NEAR(again.center().y, camera.center().y, 1e-3);
}

TEST(CameraMoves, TheCentreStopsAtBothPoles) {
    forEveryCamera([](const Camera& camera) {
        double north = worldSize;
        double south = 0;
        for (const ScreenPoint to : {ScreenPoint{480, 1e7}, {480, -1e7}, {1e7, 356}, {-1e7, 356}}) {
            const double y = camera.panned(to.x, to.y).center().y;
            north = std::min(north, y);
            south = std::max(south, y);
            EXPECT_GE(y, 0);
            EXPECT_LE(y, worldSize);
        }
        EXPECT_EQ(north, 0);
        EXPECT_EQ(south, worldSize);
    });
}

TEST(CameraMoves, AllThatIsSeenLiesBetweenTheCornersOfTheVisibleMap) {
    forEveryCamera([](const Camera& camera) {
        const auto corners = camera.visibleCorners();
        expectAt(camera.worldToScreen(corners[0]), {0, 0});
        expectAt(camera.worldToScreen(corners[1]), {960, 0});
        expectAt(camera.worldToScreen(corners[2]), {960, 748});
        expectAt(camera.worldToScreen(corners[3]), {0, 748});
        const MapRect rect = camera.visibleRect(1e-6);
        for (double y = 0; y <= 748; y += 44) {
            for (double x = 0; x <= 960; x += 40) {
                EXPECT_TRUE(rect.contains(camera.screenToWorld({x, y}))) << x << ", " << y;
            }
        }
    });
}

TEST(CameraMoves, TheMapReachesPastTheTopEvenAtTheSteepestPitch) {
    const Camera steepest(poseOf(0, Camera::maximumPitch), viewport);
    const auto corners = steepest.visibleCorners(64);
    for (const MapPoint& corner : corners) {
        EXPECT_GT(steepest.worldToPerspective(corner).w, 0);
    }
    expectAt(steepest.worldToScreen(corners[0]), {-64, -64});
}

TEST(CameraMoves, APointAboveTheHorizonIsAFarPlaceInItsDirection) {
    const Camera camera(poseOf(0, 60), viewport);
    const MapPoint below = camera.screenToWorld({700, -1e5});
    EXPECT_TRUE(std::isfinite(below.x));
    EXPECT_GT(below.x, camera.center().x);
    EXPECT_LT(below.y, camera.center().y);
}

TEST(CameraMoves, WhatIsNoNumberMovesNothing) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const Camera camera(poseOf(30, 40), viewport);
    EXPECT_EQ(camera.dragged({nan, 0}, {1, 1}).pose(), camera.pose());
    EXPECT_EQ(camera.dragged({0, 0}, {1, infinity}).pose(), camera.pose());
    EXPECT_EQ(camera.panned(nan, 1).pose(), camera.pose());
    EXPECT_EQ(camera.zoomed(infinity, {1, 1}).pose(), camera.pose());
    EXPECT_EQ(camera.zoomed(2, {1, nan}).pose(), camera.pose());
    EXPECT_EQ(camera.rotated(20, {nan, 1}).pose(), camera.pose());
    EXPECT_EQ(camera.rotated(nan, camera.focus()).pose().bearing, 30);
    EXPECT_EQ(camera.tilted(nan).pose(), camera.pose());
}

} // namespace
} // namespace vasker
