#include "map/geometry/ScaleBar.h"

#include <cmath>
#include <numbers>

namespace vasker {

namespace {

constexpr double maximumPixels = 150;
constexpr double equatorMetres = 2 * std::numbers::pi * 6'378'137;

} // namespace

double metresPerPixel(const Camera& camera) noexcept {
    const double latitude = mapPointToCoordinate(camera.center()).latitude;
    const double parallel = equatorMetres * std::cos(latitude * std::numbers::pi / 180);
    return parallel / (worldSize * camera.scale());
}

ScaleBar scaleBar(const Camera& camera) noexcept {
    const double metre = metresPerPixel(camera);
    const double longest = metre * maximumPixels;
    const double power = std::pow(10, std::floor(std::log10(longest)));
    const double times = longest / power; // 1 to 10
    const double metres = (times < 2 ? 1 : times < 5 ? 2 : 5) * power;
    return {metres, metres / metre};
}

} // namespace vasker
