#include "map/geometry/DetailLevel.h"

#include "map/geometry/Projection.h"

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

TEST(DetailLevel, LevelZeroShowsTheWorldOnAsManyPixelsAsATileHas) {
    EXPECT_DOUBLE_EQ(DetailLevel(0).maximumScale() * worldSize, 512);
    EXPECT_DOUBLE_EQ(DetailLevel(4).maximumScale() * worldSize, 4 * 512);
}

} // namespace
} // namespace vasker
