#include "map/geometry/DetailLevel.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vasker {
namespace {

TEST(DetailLevel, ServesEveryScaleWithinHalfAZoomStep) {
    for (double scale = 1e-6; scale < 8; scale *= 1.07) {
        const DetailLevel level = DetailLevel::forScale(scale);
        EXPECT_GE(level.maximumScale(), scale * (1 - 1e-9));
        EXPECT_LT(level.minimumScale(), scale * (1 + 1e-9));
    }
    const DetailLevel level = DetailLevel::forScale(0.01);
    EXPECT_NEAR(level.maximumScale() / level.minimumScale(), std::sqrt(2.0), 1e-12);
}

TEST(DetailLevel, AScaleAtTheEdgeOfALevelBelongsToIt) {
    const DetailLevel level(12);
    EXPECT_EQ(DetailLevel::forScale(level.maximumScale()), level);
}

TEST(DetailLevel, TheWorldIsOneTileAtLevelZero) {
    EXPECT_DOUBLE_EQ(DetailLevel(0).tileSize(), worldSize);
    EXPECT_DOUBLE_EQ(DetailLevel(4).tileSize(), worldSize / 4);
}

TEST(TileRange, HoldsEveryTileThatTheRectangleTouches) {
    const DetailLevel level(4); // four by four tiles
    const double tile = worldSize / 4;
    const TileRange range = TileRange::covering({tile * 0.5, tile * 1.5, tile, tile}, level);
    EXPECT_EQ(range.first, (TileIndex{0, 1}));
    EXPECT_EQ(range.last, (TileIndex{1, 2}));
    EXPECT_TRUE(range.contains({1, 1}));
    EXPECT_FALSE(range.contains({2, 1}));
}

TEST(TileRange, TilesWestOfTheWorldHaveNegativeColumns) {
    const TileRange range = TileRange::covering({-10, -10, 20, 20}, DetailLevel(4));
    EXPECT_EQ(range.first, (TileIndex{-1, -1}));
    EXPECT_EQ(range.last, (TileIndex{0, 0}));
}

} // namespace
} // namespace vasker
