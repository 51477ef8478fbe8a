#include "map/records/MarkerFrame.h"

#include <algorithm>

namespace vasker {

namespace {

/// A selected balloon is 47 pixels high with its ring; no mark reaches farther from its point.
constexpr double markReach = 48;

} // namespace

MarkerFrame
markerFrame(const MarkerLayout& layout, std::optional<AssetIndex> selected, const Camera& camera) {
    MarkerFrame frame;
    const double reach = markReach / camera.scale();
    const MapRect view = camera.visibleRect().inset(-reach, -reach);

    for (const Marker& marker : layout.balloons) {
        if (!view.contains(marker.point)) {
            continue;
        }
        const PlacedMarker placed{marker.asset, camera.worldToScreen(marker.point)};
        if (marker.asset == selected) {
            frame.selected = placed;
        } else if (frame.balloons.size() < maximumBalloons) {
            frame.balloons.push_back(placed);
        } else {
            frame.dots.push_back(placed);
        }
    }
    for (const Marker& marker : layout.dots) {
        if (view.contains(marker.point)) {
            frame.dots.push_back({marker.asset, camera.worldToScreen(marker.point)});
        }
    }
    std::reverse(frame.dots.begin(), frame.dots.end());
    std::stable_sort(frame.balloons.begin(),
                     frame.balloons.end(),
                     [](const auto& a, const auto& b) { return a.point.y < b.point.y; });
    return frame;
}

} // namespace vasker
