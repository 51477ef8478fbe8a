#include "map/input/Gestures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vasker {
namespace {

const Camera startCamera(canadaOverview, {960, 712});

TEST(Gestures, APressThatHardlyMovesIsAClick) {
    Drag drag(DragKind::pan, {100, 100});
    const Camera after = drag.moved(startCamera, {102, 101});
    EXPECT_TRUE(drag.isClick());
    EXPECT_EQ(after.center(), startCamera.center());
}

TEST(Gestures, ADragKeepsThePlaceUnderThePointer) {
    Drag drag(DragKind::pan, {100, 100});
    Camera now = drag.moved(startCamera, {103, 100});
    now = drag.moved(now, {180, 130});
    EXPECT_FALSE(drag.isClick());
    const ScreenPoint seen = now.worldToScreen(startCamera.screenToWorld({100, 100}));
    EXPECT_NEAR(seen.x, 180, 1e-6);
    EXPECT_NEAR(seen.y, 130, 1e-6);
}

TEST(Gestures, ADragThatReturnsToItsPlaceIsStillADrag) {
    Drag drag(DragKind::pan, {100, 100});
    Camera now = drag.moved(startCamera, {150, 100});
    now = drag.moved(now, {100, 100});
    EXPECT_FALSE(drag.isClick());
    EXPECT_NEAR(now.center().x, startCamera.center().x, 1e-6);
}

TEST(Gestures, TwoNotchesOfTheWheelDoubleTheScale) {
    EXPECT_DOUBLE_EQ(wheelZoomFactor(240), 2);
    EXPECT_DOUBLE_EQ(wheelZoomFactor(-240), 0.5);
    EXPECT_DOUBLE_EQ(wheelZoomFactor(0), 1);
}

TEST(Gestures, APinchKeepsThePlaceUnderBothFingers) {
    Pinch pinch({400, 300}, {500, 300});
    const MapPoint first = startCamera.screenToWorld({400, 300});
    const MapPoint second = startCamera.screenToWorld({500, 300});
    const Camera after = pinch.moved(startCamera, {350, 320}, {600, 320});
    EXPECT_NEAR(after.worldToScreen(first).x, 350, 1e-6);
    EXPECT_NEAR(after.worldToScreen(first).y, 320, 1e-6);
    EXPECT_NEAR(after.worldToScreen(second).x, 600, 1e-6);
}

TEST(Gestures, AFingerMayTrembleMoreThanAMouse) {
    Drag drag(DragKind::pan, {100, 100}, touchDragThreshold);
    static_cast<void>(drag.moved(startCamera, {106, 106}));
    EXPECT_TRUE(drag.isClick());
    static_cast<void>(drag.moved(startCamera, {108, 108}));
    EXPECT_FALSE(drag.isClick());
}

TEST(Gestures, FingersThatHardlyTurnKeepTheBearing) {
    Pinch pinch({400, 300}, {500, 300});
    const Camera after = pinch.moved(startCamera, {380, 300}, {540, 315}); // 5 degrees
    EXPECT_GT(after.scale(), startCamera.scale());
    EXPECT_TRUE(after.isUpright());
}

TEST(Gestures, TheMapRotatesWithTheFingersWithoutAJump) {
    Pinch pinch({400, 300}, {500, 300});
    const auto onCircle = [](double degrees) {
        const double angle = degrees * std::acos(-1.0) / 180;
        return ScreenPoint{400 + 100 * std::cos(angle), 300 + 100 * std::sin(angle)};
    };
    Camera now = startCamera;
    double before = 0;
    for (int degrees = 1; degrees <= 90; ++degrees) { // clockwise
        now = pinch.moved(now, {400, 300}, onCircle(degrees));
        const double turned = std::remainder(now.pose().bearing, 360);
        EXPECT_LE(turned, before + 1e-9);
        EXPECT_GE(turned, before - 1.001);
        before = turned;
    }
    EXPECT_NEAR(before, -(90 - 8), 1e-6);
}

TEST(Gestures, ATurningDragTurnsAcrossAndLeansUpwards) {
    Drag drag(DragKind::rotate, {100, 300});
    Camera now = drag.moved(startCamera, {102, 300});
    EXPECT_TRUE(drag.isClick());
    EXPECT_TRUE(now.isUpright());
    now = drag.moved(now, {180, 200});
    EXPECT_FALSE(drag.isClick());
    EXPECT_NEAR(now.pose().bearing, 40, 1e-9);
    EXPECT_NEAR(now.pose().pitch, 40, 1e-9);
    EXPECT_NEAR(now.center().x, startCamera.center().x, 1e-3);
    EXPECT_NEAR(now.center().y, startCamera.center().y, 1e-3);
    now = drag.moved(now, {100, -900});
    EXPECT_NEAR(now.pose().bearing, 0, 1e-9);
    EXPECT_EQ(now.pose().pitch, Camera::maximumPitch);
}

TEST(Gestures, WhatIsNearlyUprightIsMeantToBe) {
    const CameraPose pose = startCamera.pose();
    EXPECT_EQ(settled({pose.center, pose.scale, 357, 3}), pose);
    EXPECT_EQ(settled({pose.center, pose.scale, 3, 0}), pose);
    const CameraPose turned{pose.center, pose.scale, 20, 30};
    EXPECT_EQ(settled(turned), turned);
}

TEST(Gestures, FingersInOnePlaceDoNotZoom) {
    Pinch pinch({400, 300}, {400, 300});
    EXPECT_DOUBLE_EQ(pinch.moved(startCamera, {390, 300}, {410, 300}).scale(), startCamera.scale());
}

TEST(Gestures, TheMapRotatesByWhatFingersRotateBeyondTheThreshold) {
    Pinch pinch({400, 300}, {500, 300});
    const double angle = 8.5 * std::acos(-1.0) / 180;
    const ScreenPoint second{400 + 100 * std::cos(angle), 300 + 100 * std::sin(angle)};
    const Camera after = pinch.moved(startCamera, {400, 300}, second);
    EXPECT_NEAR(std::remainder(after.pose().bearing, 360), -0.5, 1e-6);
}

} // namespace
} // namespace vasker
