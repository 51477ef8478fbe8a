#include "map/geometry/Steering.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vasker {
namespace {

constexpr Viewport viewport{960, 748, 36, 0};
constexpr double held = 2; ///< seconds

Camera cameraOf(double bearing = 0, double pitch = 0) {
    return {CameraPose{coordinateToMapPoint({54, -112}), 3e-4, bearing, pitch}, viewport};
}

double pixelsEast(const Camera& from, const Camera& to) {
    return (to.center().x - from.center().x) * from.scale();
}

double doublings(const Camera& from, const Camera& to) {
    return std::log2(to.scale() / from.scale());
}

TEST(Steering, AShortPressMovesExactlyOneStep) {
    Steering steering(cameraOf());
    steering.press(SteeringAxis::right, 1, 0);
    steering.release(SteeringAxis::right, 1, 0.06);
    EXPECT_FALSE(steering.isFinished(0.1));
    EXPECT_TRUE(steering.isFinished(1));
    EXPECT_NEAR(pixelsEast(cameraOf(), steering.cameraAt(1)), 100, 1e-6);
    EXPECT_EQ(steering.cameraAt(1).pose(), steering.cameraAt(50).pose());
}

TEST(Steering, AHeldKeyMovesSteadilyAndStopsSoftly) {
    Steering steering(cameraOf());
    steering.press(SteeringAxis::right, -1, 0);
    const double speed = pixelsEast(steering.cameraAt(0.5), steering.cameraAt(0.6)) / 0.1;
    EXPECT_NEAR(pixelsEast(steering.cameraAt(1.5), steering.cameraAt(1.6)) / 0.1, speed, 1e-3);
    EXPECT_LT(speed, -100);
    EXPECT_FALSE(steering.isFinished(held));
    steering.release(SteeringAxis::right, -1, held);
    // The moment after the release is as fast as the one before, the last one hardly moves.
    EXPECT_NEAR(pixelsEast(steering.cameraAt(held), steering.cameraAt(held + 0.001)) / 0.001,
                speed,
                -0.02 * speed);
    EXPECT_TRUE(steering.isFinished(held + 0.17));
    const double last =
        pixelsEast(steering.cameraAt(held + 0.15), steering.cameraAt(held + 0.16)) / 0.01;
    EXPECT_GT(last, 0.1 * speed);
    EXPECT_LE(last, 0);
}

TEST(Steering, EveryAxisMovesWhatItsNameSays) {
    const auto after = [](SteeringAxis axis, int direction) {
        return stepped(cameraOf(30, 20), axis, direction);
    };
    const Camera start = cameraOf(30, 20);
    EXPECT_LT(after(SteeringAxis::right, 1).worldToScreen(start.center()).x, start.focus().x);
    EXPECT_LT(after(SteeringAxis::down, 1).worldToScreen(start.center()).y, start.focus().y);
    EXPECT_DOUBLE_EQ(after(SteeringAxis::nearer, 1).scale(), 2 * start.scale());
    EXPECT_DOUBLE_EQ(after(SteeringAxis::nearer, -1).scale(), start.scale() / 2);
    EXPECT_DOUBLE_EQ(after(SteeringAxis::clockwise, 1).pose().bearing, 45);
    EXPECT_DOUBLE_EQ(after(SteeringAxis::clockwise, -1).pose().bearing, 15);
    EXPECT_DOUBLE_EQ(after(SteeringAxis::back, 1).pose().pitch, 30);
}

TEST(Steering, TwoKeysActAtOnce) {
    Steering steering(cameraOf());
    steering.press(SteeringAxis::right, 1, 0);
    steering.press(SteeringAxis::nearer, 1, 0.5);
    const Camera later = steering.cameraAt(1);
    EXPECT_NEAR(doublings(cameraOf(), later), 0.5 * 3.5, 1e-9);
    // At twice the scale a second of panning would be half as far: the way is made in parts.
    EXPECT_GT(pixelsEast(cameraOf(), later), 300);
    steering.release(SteeringAxis::nearer, 1, 1);
    EXPECT_FALSE(steering.isFinished(20));
    steering.releaseAll(1.5);
    EXPECT_TRUE(steering.isFinished(3));
}

TEST(Steering, QuickPressesAreOwedStepByStep) {
    Steering steering(cameraOf());
    for (int press = 0; press < 3; ++press) {
        steering.press(SteeringAxis::nearer, 1, 0.1 * press);
        steering.release(SteeringAxis::nearer, 1, 0.1 * press + 0.05);
    }
    EXPECT_NEAR(doublings(cameraOf(), steering.cameraAt(10)), 3, 1e-9);
}

TEST(Steering, TheKeyPressedLastDecides) {
    Steering steering(cameraOf());
    steering.press(SteeringAxis::right, 1, 0);
    steering.press(SteeringAxis::right, -1, 1);
    EXPECT_LT(pixelsEast(steering.cameraAt(1), steering.cameraAt(1.5)), 0);
    steering.release(SteeringAxis::right, 1, 1.5); // has given way already
    EXPECT_FALSE(steering.isFinished(5));
    steering.release(SteeringAxis::right, -1, 5);
    EXPECT_TRUE(steering.isFinished(6));
}

TEST(Steering, ASecondKeyOfTheSameDirectionChangesNothing) {
    Steering steering(cameraOf());
    steering.press(SteeringAxis::nearer, 1, 0);
    steering.press(SteeringAxis::nearer, 1, 0.2);
    EXPECT_NEAR(doublings(cameraOf(), steering.cameraAt(0.4)), 0.4 * 3.5, 1e-9);
    steering.release(SteeringAxis::nearer, 1, 0.4);
    EXPECT_TRUE(steering.isFinished(1));
}

TEST(Steering, AtRestItStaysWhereItIs) {
    const Steering steering(cameraOf(10, 10));
    EXPECT_TRUE(steering.isFinished(0));
    EXPECT_EQ(steering.cameraAt(7).pose(), cameraOf(10, 10).pose());
}

TEST(Steering, LeaningStopsAtTheSteepestPitch) {
    Steering steering(cameraOf());
    steering.press(SteeringAxis::back, 1, 0);
    EXPECT_EQ(steering.cameraAt(10).pose().pitch, Camera::maximumPitch);
}

} // namespace
} // namespace vasker
