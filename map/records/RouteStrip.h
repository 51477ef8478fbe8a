#pragma once
// Routes as a triangle strip for the screen: mitred at bends, rounded at ends and sharp corners.

#include "map/geometry/Camera.h"
#include "map/layers/LineLayer.h"
#include "map/records/RouteLines.h"

#include <span>

namespace vasker {

/// The lines of `runs` that `camera` sees, and those within `margin` pixels of its view, in every
/// copy of the world.
[[nodiscard]] LineStrip routeStrip(const RecordGeometry& geometry,
                                   std::span<const RouteRun> runs,
                                   const RouteColors& colors,
                                   const Camera& camera,
                                   double margin = 0);

} // namespace vasker
