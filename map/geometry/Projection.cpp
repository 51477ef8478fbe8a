#include "map/geometry/Projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vasker {

using std::numbers::pi;

MapPoint coordinateToMapPoint(Coordinate coordinate) noexcept {
    const double latitude =
        std::clamp(coordinate.latitude, -maximumLatitude, maximumLatitude) * pi / 180;
    return {(coordinate.longitude + 180) / 360 * worldSize,
            (0.5 - std::asinh(std::tan(latitude)) / (2 * pi)) * worldSize};
}

Coordinate mapPointToCoordinate(MapPoint point) noexcept {
    return {std::atan(std::sinh((0.5 - point.y / worldSize) * 2 * pi)) * 180 / pi,
            point.x / worldSize * 360 - 180};
}

} // namespace vasker
