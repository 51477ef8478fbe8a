#include "map/records/MarkerFrame.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// A selected pin is 47 pixels high with its ring; no mark reaches farther from its point.
constexpr double markReach = 48;

/// Projects markers into one view.
class Placing {
  public:
    explicit Placing(const Camera& camera)
        : m_camera(camera), m_seen(camera.visibleRect(markReach)),
          m_shifts(worldCopyOffsets(m_seen)) {}

    /// Calls `use` with the marker as it stands in each copy of the world that is seen.
    template <typename Use>
    void place(const Marker& marker, Use use) const {
        for (const double shift : m_shifts) {
            const MapPoint point{marker.point.x + shift, marker.point.y};
            if (!m_seen.contains(point)) {
                continue;
            }
            const ScreenPoint place = m_camera.worldToScreen(point);
            const Viewport view = m_camera.viewport();
            if (place.x >= -markReach && place.x <= view.width + markReach &&
                place.y >= -markReach && place.y <= view.height + markReach) {
                use(PlacedMarker{marker.asset, place, marker.isAlone});
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
    std::vector<double> m_shifts;
};

} // namespace

MarkerFrame markerFrame(const MarkerLayout& layout,
                        const HighlightedMarkers& lifted,
                        Dots dots,
                        const Camera& camera) {
    const Placing placing(camera);
    MarkerFrame frame;
    frame.selected = placing.nearestToFocus(lifted.selected);
    const bool hoversTheSelected =
        lifted.selected && lifted.hovered && lifted.selected->asset == lifted.hovered->asset;
    if (!hoversTheSelected) {
        frame.hovered = placing.nearestToFocus(lifted.hovered);
    }
    const auto isLifted = [&](AssetIndex asset) {
        return (lifted.selected && lifted.selected->asset == asset) ||
               (lifted.hovered && lifted.hovered->asset == asset);
    };
    for (const Marker& marker : layout.pins) {
        if (isLifted(marker.asset)) {
            continue;
        }
        placing.place(marker, [&frame](const PlacedMarker& placed) {
            const bool hasRoom = frame.pins.size() < maximumPins;
            (hasRoom ? frame.pins : frame.dots).push_back(placed);
        });
    }
    if (dots == Dots::drawn) {
        for (const Marker& marker : layout.dots) {
            placing.place(marker,
                          [&frame](const PlacedMarker& placed) { frame.dots.push_back(placed); });
        }
    }
    std::reverse(frame.dots.begin(), frame.dots.end());
    std::stable_sort(frame.pins.begin(), frame.pins.end(), [](const auto& a, const auto& b) {
        return a.point.y < b.point.y;
    });
    return frame;
}

} // namespace vasker
