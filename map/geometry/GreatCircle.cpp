#include "map/geometry/GreatCircle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vasker {

namespace {

constexpr double earthRadiusMetres = 6'371'008.8;
constexpr double degree = std::numbers::pi / 180;
constexpr int pointCount = 8;

} // namespace

// Haversine: exact for places side by side, too.
double distanceMetres(Coordinate from, Coordinate to) noexcept {
    const double northward = std::sin((to.latitude - from.latitude) * degree / 2);
    const double eastward = std::sin((to.longitude - from.longitude) * degree / 2);
    const double chord = northward * northward + std::cos(from.latitude * degree) *
                                                     std::cos(to.latitude * degree) * eastward *
                                                     eastward;
    return 2 * earthRadiusMetres * std::asin(std::sqrt(std::min(1.0, chord)));
}

double bearingDegrees(Coordinate from, Coordinate to) noexcept {
    const double turn = (to.longitude - from.longitude) * degree;
    const double east = std::sin(turn) * std::cos(to.latitude * degree);
    const double north =
        std::cos(from.latitude * degree) * std::sin(to.latitude * degree) -
        std::sin(from.latitude * degree) * std::cos(to.latitude * degree) * std::cos(turn);
    const double degrees = std::atan2(east, north) / degree;
    return degrees < 0 ? degrees + 360 : degrees;
}

CompassPoint compassPoint(double degrees) noexcept {
    const double turns = degrees / 360 - std::floor(degrees / 360);
    const int point = static_cast<int>(std::floor(turns * pointCount + 0.5));
    return static_cast<CompassPoint>(point % pointCount);
}

} // namespace vasker
