#pragma once
// The marks of one picture: which are in view and where they stand, in drawing order.

#include "map/geometry/Camera.h"
#include "map/records/MarkerLayout.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vasker {

struct PlacedMarker {
    AssetIndex asset;
    ScreenPoint point;    ///< of the record: the centre of a dot, the tip of a pin
    bool isAlone = false; ///< as in the layout
};

struct MarkerFrame {
    std::vector<PlacedMarker> dots;       ///< the last drawn on top: rarer kinds
    std::vector<PlacedMarker> pins;       ///< the last drawn on top: farther down the screen
    std::optional<PlacedMarker> hovered;  ///< a pin above these; stands in neither list
    std::optional<PlacedMarker> selected; ///< a pin above all; stands in neither list
};

/// Whether the dots of a layout are drawn one by one, or are in the picture of the ground already.
enum class Dots : std::uint8_t { drawn, painted };

/// The markers that stand out, wherever they stand in the layout.
struct HighlightedMarkers {
    std::optional<Marker> hovered;
    std::optional<Marker> selected;
};

/// The marks of `layout` that `camera` sees in all copies of the world, those whose point is up to
/// a pin's size outside included. At most maximumPins stand as pins; the others are
/// dots. Who is lifted stands once, in the copy of the world nearest to the camera's centre.
[[nodiscard]] MarkerFrame markerFrame(const MarkerLayout& layout,
                                      const HighlightedMarkers& lifted,
                                      Dots dots,
                                      const Camera& camera);

} // namespace vasker
