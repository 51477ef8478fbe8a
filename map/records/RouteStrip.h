#pragma once
// Routes as a triangle strip for the screen: mitred at bends, rounded at ends and sharp corners.

#include "map/geometry/Camera.h"
#include "map/records/RouteLines.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vasker {

/// A corner of a strip. Each point of a line has two, one for either edge.
struct RouteVertex {
    /// Which corner of the line's cross-section this is. The tips lie half a line's width beyond an
    /// end of the line and carry its round cap.
    enum class Corner : std::uint8_t { left = 0, right = 1, leftTip = 2, rightTip = 3 };

    float x, y;             ///< on the line, in item pixels
    float offsetX, offsetY; ///< from the line to the corner, in halves of the line's width
    std::uint8_t red, green, blue;
    Corner corner;
};

/// One triangle strip; parts of it are joined by triangles without area.
using RouteStrip = std::vector<RouteVertex>;

/// The lines of `runs` that `camera` sees, in every copy of the world.
[[nodiscard]] RouteStrip routeStrip(const RecordGeometry& geometry,
                                    std::span<const RouteRun> runs,
                                    const RouteColors& colors,
                                    const Camera& camera);

} // namespace vasker
