#pragma once
// Simplified levels of a line, by Douglas and Peucker's rule (1973): which vertices are needed so
// that what is drawn stays within a tolerance of the published line.

#include "map/geometry/Projection.h"

#include <cstddef>
#include <span>
#include <vector>

namespace vasker {

/// The most vertices that lineDetail() is meant for: its time grows with their square at worst, so
/// longer lines are cut into runs of this length that share their end vertices.
inline constexpr std::size_t maximumRunLength = 512;

/// For each vertex the tolerance, in map points, below which it is needed: drawing the vertices
/// whose detail is above a tolerance stays within that tolerance of the whole line. Infinite for
/// both ends. A vertex is never needed longer than the one that splits its part of the line, so
/// that coarser levels are subsets of finer ones.
[[nodiscard]] std::vector<float> lineDetail(std::span<const MapPoint> line);

} // namespace vasker
