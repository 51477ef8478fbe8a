#include "map/geometry/LineDetail.h"

#include "map/geometry/Segment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace vasker {
namespace {

std::vector<MapPoint>
kept(const std::vector<MapPoint>& line, const std::vector<float>& detail, float tolerance) {
    std::vector<MapPoint> result;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (detail[i] > tolerance) {
            result.push_back(line[i]);
        }
    }
    return result;
}

double distanceToLine(MapPoint point, const std::vector<MapPoint>& line) {
    double best = INFINITY;
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        best = std::min(best, distanceToSegment(point, line[i], line[i + 1]));
    }
    return best;
}

TEST(LineDetail, TheEndsOfALineAreAlwaysNeeded) {
    const auto detail = lineDetail(std::vector<MapPoint>{{0, 0}, {1, 0}, {2, 0}});
    EXPECT_TRUE(std::isinf(detail.front()));
    EXPECT_TRUE(std::isinf(detail.back()));
    EXPECT_EQ(detail[1], 0);
}

TEST(LineDetail, AVertexIsNeededBelowItsDistanceFromTheStraightLine) {
    const auto detail = lineDetail(std::vector<MapPoint>{{0, 0}, {5, 3}, {10, 0}});
    EXPECT_FLOAT_EQ(detail[1], 3);
}

TEST(LineDetail, AnEmptyLineAndASinglePointHaveNoDetail) {
    EXPECT_TRUE(lineDetail({}).empty());
    EXPECT_EQ(lineDetail(std::vector<MapPoint>{{1, 2}}).size(), 1U);
}

TEST(LineDetail, AClosedLineKeepsItsFarthestVertex) {
    const auto detail = lineDetail(std::vector<MapPoint>{{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}});
    EXPECT_NEAR(detail[2], std::hypot(4, 4), 1e-5);
}

TEST(LineDetail, EveryLevelStaysWithinItsToleranceOfTheWholeLine) {
    std::mt19937 random(7);
    std::normal_distribution<double> step(0, 10);
    for (int round = 0; round < 20; ++round) {
        std::vector<MapPoint> line{{0, 0}};
        while (line.size() < maximumRunLength) {
            line.push_back({line.back().x + 8 + step(random), line.back().y + step(random)});
        }
        const auto detail = lineDetail(line);
        for (const float tolerance : {0.5F, 2.0F, 8.0F, 32.0F, 128.0F}) {
            const auto level = kept(line, detail, tolerance);
            for (const MapPoint point : line) {
                ASSERT_LE(distanceToLine(point, level), static_cast<double>(tolerance) + 1e-3);
            }
        }
    }
}

TEST(LineDetail, CoarserLevelsAreSubsetsOfFinerOnes) {
    const std::vector<MapPoint> spiral = [] {
        std::vector<MapPoint> line;
        for (int i = 0; i < 500; ++i) {
            line.push_back({i * std::cos(i * 0.3), i * std::sin(i * 0.3)});
        }
        return line;
    }();
    const auto detail = lineDetail(spiral);
    std::size_t previous = spiral.size() + 1;
    for (const float tolerance : {0.0F, 1.0F, 4.0F, 16.0F, 64.0F}) {
        const std::size_t count = kept(spiral, detail, tolerance).size();
        EXPECT_LE(count, previous);
        previous = count;
    }
}

} // namespace
} // namespace vasker
