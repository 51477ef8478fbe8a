#pragma once
// Degrees to map points and back: Web Mercator on a square world of 2^28 map points a side, origin
// in the north-west corner, x to the east, y to the south.

namespace vasker {

/// WGS-84 decimal degrees.
struct Coordinate {
    double latitude;
    double longitude;
    friend bool operator==(const Coordinate&, const Coordinate&) = default;
};

/// A place in the projected plane, in map points.
struct MapPoint {
    double x;
    double y;
    friend bool operator==(const MapPoint&, const MapPoint&) = default;
};

/// Side of the projected world in map points.
inline constexpr double worldSize =
    268'435'456.0; // 2^28: one map point is one pixel at zoom 20 of 256-px tiles

/// The latitude at which the projected world becomes a square: atan(sinh(pi)), in degrees.
inline constexpr double maximumLatitude = 85.051128779806604;

/// Latitudes beyond +-maximumLatitude are drawn at the world's edge; longitudes are not wrapped.
[[nodiscard]] MapPoint coordinateToMapPoint(Coordinate coordinate) noexcept;
[[nodiscard]] Coordinate mapPointToCoordinate(MapPoint point) noexcept;

} // namespace vasker
