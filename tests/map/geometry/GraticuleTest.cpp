#include "map/geometry/Graticule.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

constexpr Viewport viewport{960, 712};

TEST(Graticule, TheOverviewHasAMeridianEveryTenDegrees) {
    const Camera camera(canadaOverview, viewport);
    const Graticule lines = graticule(camera);
    const double x = camera.worldToScreen(coordinateToMapPoint({0, -110})).x;
    EXPECT_TRUE(std::any_of(lines.meridians.begin(), lines.meridians.end(), [x](double line) {
        return std::abs(line - x) < 1e-6;
    }));
    const double degree = camera.scale() * worldSize / 360;
    for (std::size_t i = 1; i < lines.meridians.size(); ++i) {
        EXPECT_NEAR(lines.meridians[i] - lines.meridians[i - 1], 10 * degree, 1e-6);
    }
}

TEST(Graticule, MeridiansStandAtLeast120PixelsApartAtEveryZoom) {
    Camera camera(canadaOverview, viewport);
    for (int step = 0; step < 20; ++step) {
        const Graticule lines = graticule(camera);
        for (std::size_t i = 1; i < lines.meridians.size(); ++i) {
            EXPECT_GE(lines.meridians[i] - lines.meridians[i - 1], 119.999);
        }
        camera = camera.zoomed(1.9, {480, 356});
    }
}

TEST(Graticule, ParallelsRunFromNorthToSouthWithinTheView) {
    const Graticule lines = graticule(Camera(canadaOverview, viewport));
    ASSERT_GE(lines.parallels.size(), 2U);
    EXPECT_TRUE(std::is_sorted(lines.parallels.begin(), lines.parallels.end()));
    EXPECT_GE(lines.parallels.front(), -1e-6);
    EXPECT_LE(lines.parallels.back(), 712 + 1e-6);
}

} // namespace
} // namespace vasker
