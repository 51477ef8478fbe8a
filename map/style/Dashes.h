#pragma once
// Dashed lines that continue from one raster tile to the next.

#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace vasker {

/// `line` in dashes, in device pixels. Where the line crosses an edge of `tile`, a dash has its
/// middle, so that the neighbour's raster tile continues the pattern. The pattern is stretched a
/// little to fit between.
[[nodiscard]] std::vector<QPolygonF>
dashes(const QPolygonF& line, double dash, double gap, const QRectF& tile);

} // namespace vasker
