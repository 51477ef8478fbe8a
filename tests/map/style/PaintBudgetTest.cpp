#include "map/style/PaintBudget.h"

#include <gtest/gtest.h>

#include <vector>

namespace vasker {
namespace {

/// So many lines from the top to the bottom of a tile.
std::vector<QPolygonF> lines(int count) {
    std::vector<QPolygonF> all;
    for (int i = 0; i < count; ++i) {
        all.push_back({QPointF(i, 0), QPointF(i, 512)});
    }
    return all;
}

TEST(PaintBudget, ALineCostsItsLengthAndSomething) {
    const double cost = strokeCost(lines(1), 1);
    EXPECT_GT(cost, 512);
    EXPECT_LT(cost, 2 * 512);
}

TEST(PaintBudget, AWiderLineCostsMore) {
    EXPECT_GT(strokeCost(lines(1), 2), 2 * strokeCost(lines(1), 1));
    EXPECT_GT(strokeCost(lines(1), 20), 2 * strokeCost(lines(1), 2));
}

TEST(PaintBudget, WhatCrossesTheSameRowsCostsTheirSquare) {
    EXPECT_GT(fillCost(lines(1'000)), 50 * fillCost(lines(100)));
    // Drawn one by one they cost no more than their sum.
    EXPECT_GT(fillCost(lines(1'000)), 10 * 1'000 * fillCost(lines(1)));
}

TEST(PaintBudget, NothingAndAPointCostNextToNothing) {
    EXPECT_EQ(fillCost({}), 0);
    EXPECT_LT(fillCost(std::vector{QPolygonF({QPointF(3, 3)})}), 100);
    EXPECT_LT(strokeCost(std::vector{QPolygonF()}, 5), 100);
}

TEST(PaintBudget, WhatIsSpentStaysSpent) {
    PaintBudget budget(100);
    EXPECT_TRUE(budget.spend(60));
    EXPECT_FALSE(budget.isSpent());
    EXPECT_FALSE(budget.spend(60));
    EXPECT_TRUE(budget.isSpent());
    EXPECT_FALSE(budget.spend(0));
}

} // namespace
} // namespace vasker
