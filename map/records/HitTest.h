#pragma once
// Which record is under the pointer: what is drawn on top wins, a near miss still counts.

#include "map/records/MarkerFrame.h"
#include "map/records/RouteMesh.h"

#include <optional>

namespace vasker {

/// How far from a mark a click still hits it, in logical pixels.
inline constexpr double balloonHitMargin = 4;
inline constexpr double dotHitRadius = 8;
inline constexpr double routeHitDistance = 8;

/// The record at `point`: the selected balloon, a balloon, the nearest dot, the nearest line - in
/// this order, the topmost first - or nothing. `colors` tells which records' lines are drawn.
[[nodiscard]] std::optional<AssetIndex> hitTest(ScreenPoint point,
                                                const Camera& camera,
                                                const MarkerFrame& frame,
                                                const RecordGeometry& geometry,
                                                const RouteColors& colors,
                                                std::optional<AssetIndex> selected);

} // namespace vasker
