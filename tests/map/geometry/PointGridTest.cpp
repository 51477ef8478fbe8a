#include "map/geometry/PointGrid.h"

#include <gtest/gtest.h>

#include <random>

namespace vasker {
namespace {

TEST(PointGrid, FindsExactlyThePointsWithinACell) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-1000, 1000);
    std::vector<MapPoint> points;
    PointGrid grid(20, 30, 500);
    for (int i = 0; i < 500; ++i) {
        points.push_back({place(random), place(random)});
        grid.insert(points.back());
    }
    for (int i = 0; i < 2000; ++i) {
        const MapPoint asked{place(random), place(random)};
        const auto isNear = [&](MapPoint point) {
            return std::abs(point.x - asked.x) < 20 && std::abs(point.y - asked.y) < 30;
        };
        bool expected = false;
        for (const MapPoint point : points) {
            expected = expected || isNear(point);
        }
        ASSERT_EQ(grid.anyNear(asked,
                               [&](MapPoint point, std::size_t number) {
                                   EXPECT_EQ(point, points[number]);
                                   return isNear(point);
                               }),
                  expected);
    }
}

TEST(PointGrid, AnEmptyGridHasNothingNear) {
    EXPECT_FALSE(PointGrid(1, 1, 0).anyNear({0, 0}, [](MapPoint, std::size_t) { return true; }));
}

TEST(PointGrid, TakesMorePointsThanExpected) {
    PointGrid grid(1, 1, 1);
    for (int i = 0; i < 100; ++i) {
        grid.insert({i * 10.0, 0});
    }
    EXPECT_TRUE(grid.anyNear({990, 0}, [](MapPoint point, std::size_t number) {
        return point.x == 990 && number == 99;
    }));
}

} // namespace
} // namespace vasker
