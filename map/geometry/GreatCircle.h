#pragma once
// Distances and directions between places on the earth, as people tell them.

#include "map/geometry/Projection.h"

namespace vasker {

/// Metres along the great circle, on a sphere of the earth's mean radius, 6,371,008.8 m.
[[nodiscard]] double distanceMetres(Coordinate from, Coordinate to) noexcept;

/// The direction in which the great circle leaves `from`: degrees clockwise from north, [0, 360).
/// 0 where the two are one place.
[[nodiscard]] double bearingDegrees(Coordinate from, Coordinate to) noexcept;

/// The eight directions that have a name of their own.
enum class CompassPoint {
    north,
    northEast,
    east,
    southEast,
    south,
    southWest,
    west,
    northWest,
};

/// The one nearest to a bearing in degrees, of any number of turns; the later of two as near.
[[nodiscard]] CompassPoint compassPoint(double degrees) noexcept;

} // namespace vasker
