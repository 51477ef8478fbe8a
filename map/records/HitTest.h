#pragma once
// Which record is under the pointer: what is drawn on top wins, a near miss still counts.

#include "map/records/MarkerFrame.h"
#include "map/records/RouteLines.h"

#include <optional>
#include <span>
#include <vector>

namespace vasker {

/// How far from a marker or a line it is still hit, in logical pixels.
inline constexpr double pointerReach = 6;
inline constexpr double touchReach = 12;

/// What can be hit.
struct HitScene {
    const Camera& camera;
    const MarkerFrame& frame;        ///< its pins
    std::span<const Marker> markers; ///< of every point record that is shown: pins and dots
    const RecordGeometry& geometry;  ///< of all routes
    const RouteColors& colors;       ///< tells which of these are shown
    std::optional<AssetIndex> selected;
};

/// The record at `point` or within `reach` pixels of it: the selected one before all, markers
/// before lines, the nearer before the farther, of equally near markers the one that is drawn on
/// top.
[[nodiscard]] std::optional<AssetIndex>
hitTest(ScreenPoint point, double reach, const HitScene& scene);

/// The markers that no zoom separates from that of `asset`: even at the nearest, their pins
/// would stand on one another. In the order of `markers`, itself included; empty if it is none of
/// these.
[[nodiscard]] std::vector<AssetIndex> sharingPlace(AssetIndex asset,
                                                   std::span<const Marker> markers);

} // namespace vasker
