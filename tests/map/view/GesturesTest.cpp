#include "map/view/Gestures.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

const Camera camera(canadaOverview, {960, 712});

TEST(Gestures, APressThatHardlyMovesIsAClick) {
    Drag drag({100, 100});
    const Camera after = drag.moved(camera, {102, 101});
    EXPECT_TRUE(drag.isClick());
    EXPECT_EQ(after.center(), camera.center());
}

TEST(Gestures, ADragKeepsTheGroundUnderThePointer) {
    Drag drag({100, 100});
    Camera now = drag.moved(camera, {103, 100});
    now = drag.moved(now, {180, 130});
    EXPECT_FALSE(drag.isClick());
    const ScreenPoint ground = now.worldToScreen(camera.screenToWorld({100, 100}));
    EXPECT_NEAR(ground.x, 180, 1e-6);
    EXPECT_NEAR(ground.y, 130, 1e-6);
}

TEST(Gestures, ADragThatReturnsToItsPlaceIsStillADrag) {
    Drag drag({100, 100});
    Camera now = drag.moved(camera, {150, 100});
    now = drag.moved(now, {100, 100});
    EXPECT_FALSE(drag.isClick());
    EXPECT_NEAR(now.center().x, camera.center().x, 1e-6);
}

TEST(Gestures, TwoNotchesOfTheWheelDoubleTheScale) {
    EXPECT_DOUBLE_EQ(wheelZoomFactor(240), 2);
    EXPECT_DOUBLE_EQ(wheelZoomFactor(-240), 0.5);
    EXPECT_DOUBLE_EQ(wheelZoomFactor(0), 1);
}

TEST(Gestures, APinchKeepsTheGroundUnderBothFingers) {
    Pinch pinch({400, 300}, {500, 300});
    const MapPoint first = camera.screenToWorld({400, 300});
    const MapPoint second = camera.screenToWorld({500, 300});
    const Camera after = pinch.moved(camera, {350, 320}, {600, 320});
    EXPECT_NEAR(after.worldToScreen(first).x, 350, 1e-6);
    EXPECT_NEAR(after.worldToScreen(first).y, 320, 1e-6);
    EXPECT_NEAR(after.worldToScreen(second).x, 600, 1e-6);
}

TEST(Gestures, FingersInOnePlaceDoNotZoom) {
    Pinch pinch({400, 300}, {400, 300});
    EXPECT_DOUBLE_EQ(pinch.moved(camera, {390, 300}, {410, 300}).scale(), camera.scale());
}

} // namespace
} // namespace vasker
