#include "map/geometry/ScaleBar.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vasker {

namespace {

constexpr double equatorMetres = 2 * std::numbers::pi * 6'378'137;

} // namespace

double metresPerPixel(const Camera& camera) noexcept {
    const double latitude = mapPointToCoordinate(camera.center()).latitude;
    const double parallel = equatorMetres * std::cos(latitude * std::numbers::pi / 180);
    return parallel / (worldSize * camera.scale());
}

ScaleBar scaleBar(const Camera& camera, double maximumPixels) noexcept {
    const double metre = metresPerPixel(camera);
    const double longest = metre * maximumPixels;
    const double power = std::pow(10, std::floor(std::log10(longest)));
    // Of 6 to 9 there is no step, half of them could not be read at the middle.
    const double metres = std::clamp(std::floor(longest / power), 1.0, 5.0) * power;
    return {metres, metres / metre};
}

} // namespace vasker
