#include "map/geometry/KeyNavigation.h"

#include "tests/map/geometry/MapViewport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vasker {
namespace {

constexpr double held = 2; ///< seconds

Camera keyCamera(double bearing = 0, double pitch = 0) {
    return {CameraPose{coordinateToMapPoint({54, -112}), 3e-4, bearing, pitch}, viewport};
}

double pixelsEast(const Camera& from, const Camera& to) {
    return (to.center().x - from.center().x) * from.scale();
}

double doublings(const Camera& from, const Camera& to) {
    return std::log2(to.scale() / from.scale());
}

TEST(KeyNavigation, AShortPressMovesExactlyOneStep) {
    KeyNavigation navigation(keyCamera());
    navigation.press(NavigationAxis::right, 1, 0);
    navigation.release(NavigationAxis::right, 1, 0.06);
    EXPECT_FALSE(navigation.isFinished(0.1));
    EXPECT_TRUE(navigation.isFinished(1));
    EXPECT_NEAR(pixelsEast(keyCamera(), navigation.cameraAt(1)), 100, 1e-6);
    EXPECT_EQ(navigation.cameraAt(1).pose(), navigation.cameraAt(50).pose());
}

TEST(KeyNavigation, AHeldKeyMovesSteadilyAndStopsSoftly) {
    KeyNavigation navigation(keyCamera());
    navigation.press(NavigationAxis::right, -1, 0);
    const double speed = pixelsEast(navigation.cameraAt(0.5), navigation.cameraAt(0.6)) / 0.1;
    EXPECT_NEAR(pixelsEast(navigation.cameraAt(1.5), navigation.cameraAt(1.6)) / 0.1, speed, 1e-3);
    EXPECT_LT(speed, -100);
    EXPECT_FALSE(navigation.isFinished(held));
    navigation.release(NavigationAxis::right, -1, held);
    // The moment after the release is as fast as the one before, the last one hardly moves.
    EXPECT_NEAR(pixelsEast(navigation.cameraAt(held), navigation.cameraAt(held + 0.001)) / 0.001,
                speed,
                -0.02 * speed);
    EXPECT_TRUE(navigation.isFinished(held + 0.17));
    const double last =
        pixelsEast(navigation.cameraAt(held + 0.15), navigation.cameraAt(held + 0.16)) / 0.01;
    EXPECT_GT(last, 0.1 * speed);
    EXPECT_LE(last, 0);
}

TEST(KeyNavigation, EveryAxisMovesWhatItsNameSays) {
    const auto after = [](NavigationAxis axis, int direction) {
        return stepped(keyCamera(30, 20), axis, direction);
    };
    const Camera start = keyCamera(30, 20);
    EXPECT_LT(after(NavigationAxis::right, 1).worldToScreen(start.center()).x, start.focus().x);
    EXPECT_LT(after(NavigationAxis::down, 1).worldToScreen(start.center()).y, start.focus().y);
    EXPECT_DOUBLE_EQ(after(NavigationAxis::nearer, 1).scale(), 2 * start.scale());
    EXPECT_DOUBLE_EQ(after(NavigationAxis::nearer, -1).scale(), start.scale() / 2);
    EXPECT_DOUBLE_EQ(after(NavigationAxis::clockwise, 1).pose().bearing, 45);
    EXPECT_DOUBLE_EQ(after(NavigationAxis::clockwise, -1).pose().bearing, 15);
    EXPECT_DOUBLE_EQ(after(NavigationAxis::back, 1).pose().pitch, 30);
}

TEST(KeyNavigation, TwoKeysActAtOnce) {
    KeyNavigation navigation(keyCamera());
    navigation.press(NavigationAxis::right, 1, 0);
    navigation.press(NavigationAxis::nearer, 1, 0.5);
    const Camera later = navigation.cameraAt(1);
    EXPECT_NEAR(doublings(keyCamera(), later), 0.5 * 3.5, 1e-9);
    // At twice the scale a second of panning would be half as far: the way is made in parts.
    EXPECT_GT(pixelsEast(keyCamera(), later), 300);
    navigation.release(NavigationAxis::nearer, 1, 1);
    EXPECT_FALSE(navigation.isFinished(20));
    navigation.releaseAll(1.5);
    EXPECT_TRUE(navigation.isFinished(3));
}

TEST(KeyNavigation, QuickPressesAreOwedStepByStep) {
    KeyNavigation navigation(keyCamera());
    for (int press = 0; press < 3; ++press) {
        navigation.press(NavigationAxis::nearer, 1, 0.1 * press);
        navigation.release(NavigationAxis::nearer, 1, 0.1 * press + 0.05);
    }
    EXPECT_NEAR(doublings(keyCamera(), navigation.cameraAt(10)), 3, 1e-9);
}

TEST(KeyNavigation, TheKeyPressedLastDecides) {
    KeyNavigation navigation(keyCamera());
    navigation.press(NavigationAxis::right, 1, 0);
    navigation.press(NavigationAxis::right, -1, 1);
    EXPECT_LT(pixelsEast(navigation.cameraAt(1), navigation.cameraAt(1.5)), 0);
    navigation.release(NavigationAxis::right, 1, 1.5); // has given way already
    EXPECT_FALSE(navigation.isFinished(5));
    navigation.release(NavigationAxis::right, -1, 5);
    EXPECT_TRUE(navigation.isFinished(6));
}

TEST(KeyNavigation, ASecondKeyOfTheSameDirectionChangesNothing) {
    KeyNavigation navigation(keyCamera());
    navigation.press(NavigationAxis::nearer, 1, 0);
    navigation.press(NavigationAxis::nearer, 1, 0.2);
    EXPECT_NEAR(doublings(keyCamera(), navigation.cameraAt(0.4)), 0.4 * 3.5, 1e-9);
    navigation.release(NavigationAxis::nearer, 1, 0.4);
    EXPECT_TRUE(navigation.isFinished(1));
}

TEST(KeyNavigation, AtRestItStaysWhereItIs) {
    const KeyNavigation navigation(keyCamera(10, 10));
    EXPECT_TRUE(navigation.isFinished(0));
    EXPECT_EQ(navigation.cameraAt(7).pose(), keyCamera(10, 10).pose());
}

TEST(KeyNavigation, LeaningStopsAtTheSteepestPitch) {
    KeyNavigation navigation(keyCamera());
    navigation.press(NavigationAxis::back, 1, 0);
    EXPECT_EQ(navigation.cameraAt(10).pose().pitch, Camera::maximumPitch);
}

} // namespace
} // namespace vasker
