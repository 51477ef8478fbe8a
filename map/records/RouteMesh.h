#pragma once
// Routes as triangle strips for one tile of one level: simplified within half a pixel, cut exactly
// at the tile's edge, mitred at bends.
//
// Positions are pixels of the level's maximum scale from the tile's north-west corner. They stay
// small whatever the zoom, so that floats are exact enough and nothing shakes.

#include "map/geometry/DetailLevel.h"
#include "map/records/RecordGeometry.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vasker {

/// Red, green, blue.
using Rgb = std::array<std::uint8_t, 3>;

/// The colour of each record's lines, by AssetIndex; none for a record that is not shown.
using RouteColors = std::vector<std::optional<Rgb>>;

/// How far a drawn line may be from the published one, in pixels.
inline constexpr double routeTolerancePixels = 0.5;

/// A corner of a strip. Each point of a line has two, one for
/// either edge; a square end lies half the line's width beyond its point.
struct RouteVertex {
    /// Which corner of the line's cross-section this is. The tips lie half a line's width beyond an
    /// end of the line and carry its round cap.
    enum class Corner : std::uint8_t { left = 0, right = 1, leftTip = 2, rightTip = 3 };

    float x, y;             ///< on the line
    float offsetX, offsetY; ///< from the line to the corner, in halves of the line's width
    std::uint8_t red, green, blue;
    Corner corner;
};

/// How a line ends: a round end takes two corners more than a square one, which looks the same on a
/// thin line.
enum class LineEnds : std::uint8_t { square, round };

/// One triangle strip; parts of it are joined by triangles without area.
using RouteMesh = std::vector<RouteVertex>;

[[nodiscard]] RouteMesh routeMesh(const RecordGeometry& geometry,
                                  std::span<const RouteRun> runs,
                                  const RouteColors& colors,
                                  DetailLevel level,
                                  TileIndex tile,
                                  LineEnds ends);

} // namespace vasker
