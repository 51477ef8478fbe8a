#pragma once
// The lines of routes as a view shows them: simplified within half a pixel, in every copy of the
// world that is seen, cut a little outside the view.

#include "map/geometry/Camera.h"
#include "map/layers/Rgb.h"
#include "map/records/RecordGeometry.h"

#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace vasker {

/// The colour of each record's lines, by AssetIndex; none for a record that is not shown.
using RouteColors = std::vector<std::optional<Rgb>>;

/// How far a drawn line may be from the published one, in pixels.
inline constexpr double routeTolerancePixels = 0.5;

/// How far lines go on beyond the view, in pixels, so that no end of theirs shows at its edge: more
/// than half of their greatest width.
inline constexpr double lineReach = 16;

/// What lines are projected to: a screen, or a raster tile.
struct LineView {
    std::function<PerspectivePoint(MapPoint)> project;
    double width; ///< pixels
    double height;
    MapRect seen; ///< map points; lineReach beyond the edges included
    double scale; ///< pixels per map point where the view is nearest
};

/// What `camera`, which outlives it, sees and `margin` pixels around that; (0, 0) is the corner of
/// both.
[[nodiscard]] LineView lineViewOf(const Camera& camera, double margin = 0);

/// Takes a line of a record: its places in pixels, which are valid during the call only.
using DrawLine = std::function<void(AssetIndex, std::span<const ScreenPoint>)>;

/// Calls `draw` with each line that `view` shows of `runs`: no two places alike in a row; one place
/// for a line without extent.
void drawRouteLines(const RecordGeometry& geometry,
                    std::span<const RouteRun> runs,
                    const RouteColors& colors,
                    const LineView& view,
                    const DrawLine& draw);

} // namespace vasker
