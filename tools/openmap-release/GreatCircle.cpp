#include "tools/openmap-release/GreatCircle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vasker {

// Haversine: exact for places side by side, too.
double angleBetween(const OpenMapRelease::Position& from, const OpenMapRelease::Position& to) {
    constexpr double radians = std::numbers::pi / 180;
    const double halfNorth = std::sin((to.latitude - from.latitude) * radians / 2);
    const double halfEast = std::sin((to.longitude - from.longitude) * radians / 2);
    const double square = halfNorth * halfNorth + std::cos(from.latitude * radians) *
                                                      std::cos(to.latitude * radians) * halfEast *
                                                      halfEast;
    return 2 * std::asin(std::sqrt(std::min(1.0, square)));
}

} // namespace vasker
