#pragma once
// Dashed lines that continue from one raster tile to the next.

#include <QPolygonF>
#include <QRectF>

#include <functional>

namespace vasker {

/// In the unit of its points.
[[nodiscard]] double lengthOf(const QPolygonF& line);

/// Calls `draw` with each dash of `line` as it is cut, in device pixels, until it returns false.
/// Where the line crosses an edge of `tile`, a dash has its middle, so that the neighbour's raster
/// tile continues the pattern. The pattern is stretched a little to fit between.
void dashes(const QPolygonF& line,
            double dash,
            double gap,
            const QRectF& tile,
            const std::function<bool(const QPolygonF&)>& draw);

} // namespace vasker
