#include "map/input/MapMotion.h"

#include <gtest/gtest.h>

#include <vector>

namespace vasker {
namespace {

class MapMotionTest : public testing::Test {
  protected:
    MapMotionTest() {
        QObject::connect(&motion, &MapMotion::advanced, [this](const Camera& camera) {
            told.push_back(camera);
        });
    }

    /// Lets the motion come to that time; no time passes by itself.
    void advanceTo(int milliseconds) { motion.setCurrentTime(milliseconds); }
    [[nodiscard]] bool isRunning() const { return motion.state() == MapMotion::Running; }

    const Camera home{CoordinateRegion{{54, -112}, 4, 4}, {.width = 800, .height = 600}};
    MapMotion motion;
    std::vector<Camera> told;
};

TEST_F(MapMotionTest, TellsEveryCameraUntilTheEndAndStopsThere) {
    motion.zoom(home, 2, home.focus(), 0.2);
    EXPECT_TRUE(isRunning());
    EXPECT_TRUE(told.empty());
    advanceTo(100);
    EXPECT_TRUE(isRunning());
    advanceTo(200);
    EXPECT_FALSE(isRunning());
    ASSERT_EQ(told.size(), 2U);
    EXPECT_GT(told[0].scale(), home.scale());
    EXPECT_LT(told[0].scale(), told[1].scale());
    EXPECT_NEAR(told[1].scale() / home.scale(), 2, 1e-9);
}

TEST_F(MapMotionTest, AZoomThatStillRunsIsContinued) {
    motion.zoom(home, 2, home.focus(), 0.2);
    advanceTo(100);
    motion.zoom(told.back(), 3, home.focus(), 0.2);
    advanceTo(200);
    EXPECT_NEAR(told.back().scale() / home.scale(), 6, 1e-9);
    motion.zoom(told.back(), 2, home.focus(), 0.2);
    advanceTo(200);
    EXPECT_NEAR(told.back().scale() / home.scale(), 12, 1e-9);
}

TEST_F(MapMotionTest, AMotionThatTakesThePlaceOfAnotherStartsAtItsOwnBeginning) {
    motion.zoom(home, 2, home.focus(), 0.2);
    advanceTo(100);
    const Camera between = told.back();
    motion.rotate(between, 90, 0);
    EXPECT_EQ(motion.currentTime(), 0);
    EXPECT_TRUE(isRunning());
    advanceTo(250);
    EXPECT_DOUBLE_EQ(told.back().scale(), between.scale());
    EXPECT_DOUBLE_EQ(told.back().pose().bearing, 90);
    EXPECT_FALSE(isRunning());
}

TEST_F(MapMotionTest, AQuickDragGoesOnAndASlowOneEndsTheMotionBefore) {
    motion.startInertia(home, {1000 / home.scale(), 0});
    advanceTo(100);
    EXPECT_TRUE(isRunning());
    ASSERT_EQ(told.size(), 1U);
    EXPECT_GT(told[0].center().x, home.center().x);
    motion.startInertia(told[0], {1 / home.scale(), 0});
    EXPECT_FALSE(isRunning());
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(MapMotionTest, AHeldKeyGoesOnUntilItIsReleased) {
    motion.press(home, NavigationAxis::right, 1, false);
    advanceTo(1000);
    motion.press(told.back(), NavigationAxis::right, 1, true);
    advanceTo(2000);
    EXPECT_TRUE(isRunning());
    EXPECT_GT(told[1].center().x, told[0].center().x);
    motion.release(NavigationAxis::right, -1);
    advanceTo(3000);
    EXPECT_TRUE(isRunning());
    motion.release(NavigationAxis::right, 1);
    advanceTo(5000);
    EXPECT_FALSE(isRunning());
}

TEST_F(MapMotionTest, AllKeysAreReleasedAtOnce) {
    motion.press(home, NavigationAxis::right, 1, false);
    motion.press(home, NavigationAxis::nearer, 1, false);
    advanceTo(100);
    EXPECT_TRUE(isRunning());
    motion.releaseAll();
    advanceTo(3000);
    EXPECT_FALSE(isRunning());
    EXPECT_NEAR(told.back().scale() / home.scale(), 2, 1e-6);
}

TEST_F(MapMotionTest, ARepeatedKeyTakesOverNothing) {
    motion.zoom(home, 2, home.focus(), 0.2);
    advanceTo(100);
    motion.press(told.back(), NavigationAxis::right, 1, true);
    advanceTo(200);
    EXPECT_NEAR(told.back().scale() / home.scale(), 2, 1e-9);
    EXPECT_FALSE(isRunning());
}

TEST_F(MapMotionTest, ACancelledMotionTellsNothingMore) {
    motion.rotate(home, 90, 30);
    motion.cancel();
    EXPECT_FALSE(isRunning());
    advanceTo(100);
    EXPECT_TRUE(told.empty());
}

TEST_F(MapMotionTest, ReducedMotionIsAtItsEndAtOnce) {
    motion.setReduced(true);
    motion.zoom(home, 2, home.focus(), 0.2);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NEAR(told[0].scale() / home.scale(), 2, 1e-9);
    motion.rotate(home, 90, 30);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_DOUBLE_EQ(told[1].pose().pitch, 30);
    motion.press(home, NavigationAxis::nearer, -1, true);
    ASSERT_EQ(told.size(), 3U);
    EXPECT_NEAR(told[2].scale() / home.scale(), 0.5, 1e-9);
    motion.startInertia(home, {1000 / home.scale(), 0});
    EXPECT_EQ(told.size(), 3U);
    EXPECT_FALSE(isRunning());
}

TEST_F(MapMotionTest, MotionThatIsReducedLaterStopsWhereItIs) {
    motion.zoom(home, 2, home.focus(), 0.2);
    motion.setReduced(false);
    EXPECT_TRUE(isRunning());
    motion.setReduced(true);
    EXPECT_FALSE(isRunning());
    EXPECT_TRUE(told.empty());
}

} // namespace
} // namespace vasker
