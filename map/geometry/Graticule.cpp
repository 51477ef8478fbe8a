#include "map/geometry/Graticule.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

constexpr double leastSpacing = 120;

double stepDegrees(double pixelsPerDegree) {
    double step = 30;
    for (const double finer : {10.0, 5.0, 2.0, 1.0, 0.5, 0.2, 0.1, 0.05, 0.02, 0.01}) {
        if (finer * pixelsPerDegree < leastSpacing) {
            break;
        }
        step = finer;
    }
    return step;
}

} // namespace

Graticule graticule(const Camera& camera) {
    const double step = stepDegrees(camera.scale() * worldSize / 360);
    const MapRect view = camera.visibleRect();
    const Coordinate northWest = mapPointToCoordinate({view.x, view.y});
    const Coordinate southEast = mapPointToCoordinate({view.x + view.width, view.y + view.height});

    Graticule lines;
    const double west = std::max(-180.0, northWest.longitude);
    const double east = std::min(180.0, southEast.longitude);
    for (double k = std::ceil(west / step); k * step <= east; ++k) {
        lines.meridians.push_back(camera.worldToScreen(coordinateToMapPoint({0, k * step})).x);
    }
    const double north = std::min(maximumLatitude, northWest.latitude);
    const double south = std::max(-maximumLatitude, southEast.latitude);
    for (double k = std::floor(north / step); k * step >= south; --k) {
        lines.parallels.push_back(camera.worldToScreen(coordinateToMapPoint({k * step, 0})).y);
    }
    return lines;
}

} // namespace vasker
