#pragma once
// Routes as a triangle strip for the screen: mitred at bends, rounded at ends and sharp corners.

#include "map/geometry/Camera.h"
#include "map/layers/LineLayer.h"
#include "map/records/RouteLines.h"

#include <limits>
#include <span>

namespace vasker {

/// What a line costs besides its length, in pixels: it has ends and corners.
inline constexpr double lineCost = 40;

/// The lines of `runs` that `camera` sees, and those within `margin` pixels of its view, in every
/// copy of the world; the first of them, where all of them cost more than `mostPixels`.
[[nodiscard]] LineStrip routeStrip(const RecordGeometry& geometry,
                                   std::span<const RouteRun> runs,
                                   const RouteColors& colors,
                                   const Camera& camera,
                                   double margin = 0,
                                   double mostPixels = std::numeric_limits<double>::infinity());

} // namespace vasker
