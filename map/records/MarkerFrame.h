#pragma once
// The markers of one frame: which are in view and where they stand, in drawing order.

#include "map/geometry/Camera.h"
#include "map/records/MarkerLayout.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vasker {

struct PlacedMarker {
    AssetIndex asset;
    ScreenPoint point;      ///< of the record: the centre of a dot, the tip of a pin
    bool isQuiet = false;   ///< as in the layout
    std::uint32_t rank = 0; ///< of a pin: its place in the layout, the same wherever the map goes
};

struct MarkerFrame {
    std::vector<PlacedMarker> dots;        ///< the last drawn on top: rarer kinds
    std::vector<PlacedMarker> paintedDots; ///< those that the raster tiles show
    std::vector<PlacedMarker> pins;        ///< the last drawn on top: farther down the screen
    std::optional<PlacedMarker> hovered;   ///< a pin above these; stands in neither list
    std::optional<PlacedMarker> selected;  ///< a pin above all; stands in neither list
};

/// How routes and dots are drawn: for each frame on a graphics card, else into the raster tiles.
enum class RecordDrawing : std::uint8_t { live, painted };

/// The markers that are pins above all others, whatever they are in the layout.
struct HighlightedMarkers {
    std::optional<Marker> hovered;
    std::optional<Marker> selected;
};

/// The markers of `layout` that `camera` sees in all copies of the world, including those whose
/// point is up to a pin's size outside. At most maximumPins stand as pins; the others are dots. A
/// highlighted marker stands once, in the copy of the world nearest to the camera's centre.
[[nodiscard]] MarkerFrame markerFrame(const MarkerLayout& layout,
                                      const HighlightedMarkers& highlighted,
                                      RecordDrawing drawing,
                                      const Camera& camera);

} // namespace vasker
