#include "map/input/MapNavigator.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <variant>

namespace vasker {
namespace {

/// A map that goes where it is asked to.
class MapNavigatorTest : public testing::Test {
  protected:
    MapNavigatorTest() {
        QObject::connect(&navigator, &MapNavigator::moved, [this](const CameraPosition& position) {
            camera = Camera(std::get<CameraPose>(position), viewport);
            navigator.follow(position);
        });
    }
    void setRotation(double bearing, double pitch) {
        CameraPose pose = camera.pose();
        pose.bearing = bearing;
        pose.pitch = pitch;
        camera = Camera(pose, viewport);
    }

    const Viewport viewport{.width = 800, .height = 600};
    Camera camera{CoordinateRegion{{54, -112}, 4, 4}, viewport};
    MapNavigator navigator{[this] { return camera; }};
};

TEST_F(MapNavigatorTest, NorthIsResetWhereTheMapIsRotatedOrTilted) {
    navigator.resetNorth();
    EXPECT_FALSE(navigator.isMoving());
    setRotation(90, 0);
    navigator.resetNorth();
    EXPECT_TRUE(navigator.isMoving());
    navigator.stop();
    EXPECT_FALSE(navigator.isMoving());
    setRotation(0, 30);
    navigator.resetNorth();
    EXPECT_TRUE(navigator.isMoving());
    navigator.setReducedMotion(true);
    setRotation(200, 30);
    navigator.resetNorth();
    EXPECT_TRUE(camera.isUpright());
}

TEST_F(MapNavigatorTest, AButtonZoomsAboutTheMiddle) {
    const Camera before = camera;
    navigator.zoomBy(2);
    EXPECT_TRUE(navigator.isMoving());
    EXPECT_EQ(camera.scale(), before.scale());
    navigator.setReducedMotion(true);
    navigator.zoomBy(2);
    EXPECT_FALSE(navigator.isMoving());
    EXPECT_NEAR(camera.scale() / before.scale(), 2, 1e-9);
    EXPECT_NEAR(camera.center().x, before.center().x, 1e-3);
    EXPECT_NEAR(camera.center().y, before.center().y, 1e-3);
}

TEST_F(MapNavigatorTest, TheMapRestsAMomentAfterItWasMoved) {
    EXPECT_TRUE(navigator.isResting());
    navigator.setReducedMotion(true);
    QSignalSpy rested(&navigator, &MapNavigator::rested);
    navigator.zoomBy(2);
    EXPECT_FALSE(navigator.isResting());
    EXPECT_TRUE(rested.isEmpty());
    EXPECT_TRUE(rested.wait(10'000));
    EXPECT_TRUE(navigator.isResting());
}

TEST_F(MapNavigatorTest, APositionFromElsewhereEndsTheMotionAndTheWaitForRest) {
    navigator.setReducedMotion(true);
    navigator.zoomBy(2);
    navigator.setReducedMotion(false);
    navigator.zoomBy(2);
    navigator.follow(CameraPosition(camera.pose()));
    EXPECT_TRUE(navigator.isMoving());
    EXPECT_FALSE(navigator.isResting());
    navigator.follow(canadaOverview);
    EXPECT_FALSE(navigator.isMoving());
    EXPECT_TRUE(navigator.isResting());
}

TEST_F(MapNavigatorTest, KeysAskForWhatTheMapItselfDoesNotDo) {
    const QSignalSpy overviews(&navigator, &MapNavigator::overviewRequested);
    const QSignalSpy menus(&navigator, &MapNavigator::menuRequested);
    EXPECT_TRUE(navigator.handle(KeyPress{Qt::Key_Home, false, false}));
    EXPECT_EQ(overviews.size(), 1);
    EXPECT_TRUE(navigator.handle(KeyPress{Qt::Key_Menu, false, false}));
    EXPECT_EQ(menus.size(), 1);
    EXPECT_FALSE(navigator.handle(KeyPress{Qt::Key_F, false, false}));
}

} // namespace
} // namespace vasker
