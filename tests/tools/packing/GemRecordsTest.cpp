#include "tools/openmap-release/packing/GemRecords.h"

#include <gtest/gtest.h>

#include <array>

namespace vasker {
namespace {

using Position = OpenMapRelease::Position;
using Route = OpenMapRelease::Route;

TEST(MiddleVertex, IsTheVertexNearestToTheMiddleOfTheLine) {
    const std::array routes{Route{{-110, 50}, {-109, 50}, {-105, 50}, {-104, 50}, {-100, 50}}};
    EXPECT_EQ(middleVertex(routes), (Position{-105, 50}));
}

TEST(MiddleVertex, BelongsToTheLongestLineByGroundNotByVertices) {
    const std::array routes{Route{{-110, 50}, {-110.1, 50}, {-110.2, 50}, {-110.3, 50}},
                            Route{{-90, 45}, {-80, 45}, {-70, 45}},
                            Route{{-90, 75}, {-80, 75}, {-68, 75}}};
    EXPECT_EQ(middleVertex(routes), (Position{-80, 45}));
}

TEST(MiddleVertex, IsTheFirstOfTwoThatAreAsNear) {
    EXPECT_EQ(middleVertex(std::array{Route{{-110, 50}, {-100, 52}}}), (Position{-110, 50}));
}

} // namespace
} // namespace vasker
