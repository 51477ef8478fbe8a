#include "map/geometry/CameraMotion.h"

#include "tests/map/geometry/MapViewport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vasker {
namespace {

Camera cameraOf(double bearing = 0, double pitch = 0) {
    return {CameraPose{coordinateToMapPoint({54, -112}), 3e-4, bearing, pitch}, viewport};
}

double speedBetween(const Camera& a, const Camera& b, double seconds) {
    return std::hypot(b.center().x - a.center().x, b.center().y - a.center().y) * a.scale() /
           seconds;
}

TEST(DragTrail, TellsTheSpeedOfTheLastTenthOfASecond) {
    DragTrail trail;
    trail.add({0, 0}, 10.0);
    trail.add({9000, 0}, 10.9); // long ago by the end
    trail.add({9010, 20}, 10.95);
    trail.add({9020, 40}, 11.0);
    const MapVelocity velocity = trail.velocityAt(11.0);
    EXPECT_NEAR(velocity.x, 20 / 0.1, 1e-6);
    EXPECT_NEAR(velocity.y, 40 / 0.1, 1e-6);
}

TEST(DragTrail, APointerThatRestsBeforeItLetsGoHasNoSpeed) {
    DragTrail trail;
    trail.add({0, 0}, 1.0);
    trail.add({500, 0}, 1.05);
    EXPECT_EQ(trail.velocityAt(1.3).x, 0);
}

TEST(DragTrail, ASinglePlaceHasNoSpeed) {
    DragTrail trail;
    EXPECT_EQ(trail.velocityAt(1).x, 0);
    trail.add({500, 700}, 1.0);
    EXPECT_EQ(trail.velocityAt(1).x, 0);
    EXPECT_EQ(trail.velocityAt(1).y, 0);
}

TEST(DragTrail, TwoEventsOfOneMomentGiveNoWildSpeed) {
    DragTrail trail;
    trail.add({0, 0}, 1.0);
    trail.add({16, 0}, 1.0);
    EXPECT_NEAR(trail.velocityAt(1.0).x, 16 / 0.016, 1e-6);
}

TEST(DragTrail, TheDateLineIsNoJump) {
    DragTrail trail;
    trail.add({worldSize - 10, 0}, 1.0);
    trail.add({10, 0}, 1.1);
    EXPECT_NEAR(trail.velocityAt(1.1).x, 200, 1e-3);
    trail.add({worldSize - 10, 0}, 1.15);
    EXPECT_NEAR(trail.velocityAt(1.15).x, -20 / 0.05, 1e-3);
}

TEST(Inertia, BeginsAsFastAsTheDragAndGetsSlower) {
    const Camera start = cameraOf(40, 30);
    const Inertia inertia(start, {2e6, -1e6}); // 671 px/s
    EXPECT_EQ(inertia.cameraAt(0).pose(), start.pose());
    EXPECT_NEAR(speedBetween(start, inertia.cameraAt(0.001), 0.001), std::hypot(600, 300), 2);
    double before = 1e9;
    for (double time = 0; time < 1; time += 0.1) {
        const double speed =
            speedBetween(inertia.cameraAt(time), inertia.cameraAt(time + 0.01), 0.01);
        EXPECT_LT(speed, before);
        before = speed;
    }
}

TEST(Inertia, StopsOnceItIsHardlySeenToMove) {
    const Inertia inertia(cameraOf(), {2e6, 0}); // 600 px/s
    EXPECT_FALSE(inertia.isFinished(1.5));
    EXPECT_TRUE(inertia.isFinished(1.6)); // 0.325 s * ln(600 / 5)
    EXPECT_EQ(inertia.cameraAt(1.6).pose(), inertia.cameraAt(100).pose());
}

TEST(Inertia, ASlowDragEndsWhereItEnds) {
    const Inertia inertia(cameraOf(), {1e5, 0}); // 30 px/s
    EXPECT_TRUE(inertia.isFinished(0));
    EXPECT_EQ(inertia.cameraAt(5).pose(), cameraOf().pose());
}

TEST(Inertia, NoDragIsEverFasterThanFiveThousandPixelsASecond) {
    const Camera start = cameraOf();
    const Inertia inertia(start, {1e9, 0});
    EXPECT_NEAR(speedBetween(start, inertia.cameraAt(0.001), 0.001), 5000, 20);
}

TEST(Inertia, ASpeedThatIsNoNumberIsNone) {
    const Inertia inertia(cameraOf(), {std::numeric_limits<double>::quiet_NaN(), 0});
    EXPECT_TRUE(inertia.isFinished(0));
    EXPECT_EQ(inertia.cameraAt(1).pose(), cameraOf().pose());
}

TEST(Inertia, CrossesTheDateLine) {
    const Inertia inertia(Camera(CameraPose{{worldSize - 1, 1e8}, 3e-4}, viewport), {2e6, 0});
    EXPECT_LT(inertia.cameraAt(1).center().x, worldSize / 2);
    EXPECT_GE(inertia.cameraAt(1).center().x, 0);
}

TEST(SmoothZoom, EndsAtItsFactorAndKeepsThePlaceUnderThePointerAllTheWay) {
    const Camera start = cameraOf(70, 45);
    const ScreenPoint pointer{700, 200};
    const MapPoint below = start.screenToWorld(pointer);
    const SmoothZoom zoom(start, 2, pointer, 0.2);
    double before = start.scale();
    for (double time = 0.02; time < 0.2; time += 0.02) {
        const Camera camera = zoom.cameraAt(time);
        EXPECT_GT(camera.scale(), before);
        EXPECT_NEAR(camera.worldToScreen(below).x, pointer.x, 1e-6);
        EXPECT_NEAR(camera.worldToScreen(below).y, pointer.y, 1e-6);
        before = camera.scale();
    }
    EXPECT_EQ(zoom.cameraAt(0).scale(), start.scale());
    EXPECT_NEAR(zoom.cameraAt(0.2).scale() / start.scale(), 2, 1e-9);
    EXPECT_FALSE(zoom.isFinished(0.19));
    EXPECT_TRUE(zoom.isFinished(0.2));
    EXPECT_EQ(zoom.cameraAt(9).pose(), zoom.cameraAt(0.2).pose());
}

TEST(SmoothZoom, IsFastFirstAndSlowLast) {
    const Camera start = cameraOf();
    const SmoothZoom zoom(start, 4, {480, 356}, 0.2);
    EXPECT_GT(std::log2(zoom.cameraAt(0.1).scale() / start.scale()), 1.5);
}

TEST(SmoothZoom, NotchesOfAWheelAddUp) {
    const Camera start = cameraOf();
    const ScreenPoint pointer{700, 200};
    SmoothZoom zoom(start, 2, pointer, 0.2);
    zoom = zoom.continued(0.05, 2, pointer, 0.2);
    zoom = zoom.continued(0.07, 2, pointer, 0.2);
    EXPECT_NEAR(zoom.cameraAt(0.2).scale() / start.scale(), 8, 1e-9);
    zoom = zoom.continued(0.01, 0.125, pointer, 0.2);
    EXPECT_NEAR(zoom.cameraAt(0.2).scale() / start.scale(), 1, 1e-9);
    EXPECT_NEAR(zoom.cameraAt(0.2).center().x, start.center().x, 1e-3);
    zoom = zoom.continued(0.2, 0.5, pointer, 0.2);
    EXPECT_NEAR(zoom.cameraAt(0.2).scale() / start.scale(), 0.5, 1e-9);
}

TEST(SmoothZoom, NotchesBeyondTheNearestZoomAreNotOwed) {
    const Camera nearest = cameraOf().zoomed(1e9, {480, 356});
    SmoothZoom zoom(nearest, 16, {480, 356}, 0.2);
    zoom = zoom.continued(0.2, 0.5, {480, 356}, 0.2);
    EXPECT_NEAR(zoom.cameraAt(0.2).scale(), Camera::maximumScale / 2, 1e-9);
}

TEST(SmoothZoom, AFactorThatIsNotPositiveMovesNothing) {
    for (const double factor : {0.0, -2.0, std::numeric_limits<double>::quiet_NaN()}) {
        const SmoothZoom zoom(cameraOf(), factor, {700, 200}, 0.2);
        EXPECT_EQ(zoom.cameraAt(0.1).scale(), cameraOf().scale());
        const SmoothZoom next =
            SmoothZoom(cameraOf(), 2, {700, 200}, 0.2).continued(0, factor, {700, 200}, 0.2);
        EXPECT_NEAR(next.cameraAt(1).scale() / cameraOf().scale(), 2, 1e-9);
    }
}

TEST(SmoothRotation, TurnsTheShortWayToNorth) {
    const SmoothRotation fromWest(cameraOf(300, 0), 0, 0);
    EXPECT_GT(fromWest.cameraAt(0.05).pose().bearing, 300);
    const SmoothRotation fromEast(cameraOf(60, 0), 0, 0);
    EXPECT_LT(fromEast.cameraAt(0.05).pose().bearing, 60);
    EXPECT_GT(fromEast.cameraAt(0.05).pose().bearing, 0);
}

TEST(SmoothRotation, EndsUprightToTheLastBit) {
    const Camera start = cameraOf(217.3, 41.7);
    const SmoothRotation rotation(start, 0, 0);
    EXPECT_FALSE(rotation.isFinished(0.24));
    ASSERT_TRUE(rotation.isFinished(0.25));
    EXPECT_TRUE(rotation.cameraAt(0.25).isUpright());
    EXPECT_EQ(rotation.cameraAt(0.25).center(), start.center());
    EXPECT_EQ(rotation.cameraAt(0.25).scale(), start.scale());
    EXPECT_LT(rotation.cameraAt(0.1).pose().pitch, 41.7);
    EXPECT_GT(rotation.cameraAt(0.1).pose().pitch, 0);
}

} // namespace
} // namespace vasker
