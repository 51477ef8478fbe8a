#include "map/geometry/Segment.h"

#include "map/geometry/Projection.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Segment, TheDistanceIsMeasuredToItsNearestPoint) {
    EXPECT_DOUBLE_EQ(distanceToSegment(MapPoint{5, 3}, {0, 0}, {10, 0}), 3);
    EXPECT_DOUBLE_EQ(distanceToSegment(MapPoint{-3, 4}, {0, 0}, {10, 0}), 5);
    EXPECT_DOUBLE_EQ(distanceToSegment(MapPoint{13, -4}, {0, 0}, {10, 0}), 5);
}

TEST(Segment, WithoutLengthItIsAPoint) {
    EXPECT_DOUBLE_EQ(distanceToSegment(MapPoint{3, 4}, {0, 0}, {0, 0}), 5);
}

} // namespace
} // namespace vasker
