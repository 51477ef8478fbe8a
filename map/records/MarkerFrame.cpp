#include "map/records/MarkerFrame.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// A selected pin is 47 pixels high with its ring; no marker reaches farther from its point.
constexpr double markerReach = 48;

/// Projects markers into one view.
class Placing {
  public:
    explicit Placing(const Camera& camera)
        : m_camera(camera), m_seen(camera.visibleRect(markerReach)),
          m_offsets(worldCopyOffsets(m_seen)) {}

    /// Calls `use` with the marker as it stands in each copy of the world that is seen.
    template <typename Use>
    void place(const Marker& marker, Use use) const {
        for (const double offset : m_offsets) {
            const MapPoint point{marker.point.x + offset, marker.point.y};
            if (!m_seen.contains(point)) {
                continue;
            }
            const ScreenPoint place = m_camera.worldToScreen(point);
            const Viewport view = m_camera.viewport();
            if (place.x >= -markerReach && place.x <= view.width + markerReach &&
                place.y >= -markerReach && place.y <= view.height + markerReach) {
                use(PlacedMarker{marker.asset, place, marker.isQuiet});
            }
        }
    }

    [[nodiscard]] std::optional<PlacedMarker>
    nearestToFocus(const std::optional<Marker>& marker) const {
        std::optional<PlacedMarker> nearest;
        if (marker) {
            const ScreenPoint focus = m_camera.focus();
            const auto distance = [focus](const PlacedMarker& placed) {
                return std::hypot(placed.point.x - focus.x, placed.point.y - focus.y);
            };
            place(*marker, [&](const PlacedMarker& placed) {
                if (!nearest || distance(placed) < distance(*nearest)) {
                    nearest = placed;
                }
            });
        }
        return nearest;
    }

  private:
    const Camera& m_camera;
    MapRect m_seen;
    std::vector<double> m_offsets;
};

} // namespace

MarkerFrame markerFrame(const MarkerLayout& layout,
                        const HighlightedMarkers& highlighted,
                        RecordDrawing drawing,
                        const Camera& camera) {
    const Placing placing(camera);
    MarkerFrame frame;
    frame.selected = placing.nearestToFocus(highlighted.selected);
    const bool hoversTheSelected = highlighted.selected && highlighted.hovered &&
                                   highlighted.selected->asset == highlighted.hovered->asset;
    if (!hoversTheSelected) {
        frame.hovered = placing.nearestToFocus(highlighted.hovered);
    }
    const auto isHighlighted = [&](AssetIndex asset) {
        return (highlighted.selected && highlighted.selected->asset == asset) ||
               (highlighted.hovered && highlighted.hovered->asset == asset);
    };
    for (const Marker& marker : layout.pins) {
        if (isHighlighted(marker.asset)) {
            continue;
        }
        const auto rank = static_cast<std::uint32_t>(&marker - layout.pins.data());
        placing.place(marker, [&frame, rank](PlacedMarker placed) {
            placed.rank = rank;
            const bool hasRoom = frame.pins.size() < maximumPins;
            (hasRoom ? frame.pins : frame.dots).push_back(placed);
        });
    }
    auto& dots = drawing == RecordDrawing::live ? frame.dots : frame.paintedDots;
    for (const Marker& marker : layout.dots) {
        placing.place(marker, [&dots](const PlacedMarker& placed) { dots.push_back(placed); });
    }
    std::reverse(frame.dots.begin(), frame.dots.end());
    std::stable_sort(frame.pins.begin(), frame.pins.end(), [](const auto& a, const auto& b) {
        return a.point.y < b.point.y;
    });
    return frame;
}

} // namespace vasker
