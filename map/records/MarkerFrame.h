#pragma once
// The marks of one picture: which are in view and where they stand, in drawing order.

#include "map/records/MarkerLayout.h"

#include <optional>
#include <vector>

namespace vasker {

struct PlacedMarker {
    AssetIndex asset;
    ScreenPoint point; ///< of the record: the centre of a dot, the tip of a balloon
};

struct MarkerFrame {
    std::vector<PlacedMarker> dots;       ///< the last drawn on top: rarer kinds
    std::vector<PlacedMarker> balloons;   ///< the last drawn on top: farther south
    std::optional<PlacedMarker> selected; ///< drawn above all; stands in neither list
};

/// The marks of `layout` in the camera's viewport, those whose point is up to a balloon's size
/// outside included. At most maximumBalloons stand as balloons; the others are dots.
[[nodiscard]] MarkerFrame
markerFrame(const MarkerLayout& layout, std::optional<AssetIndex> selected, const Camera& camera);

} // namespace vasker
