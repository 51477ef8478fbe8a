#include "map/records/HitTest.h"

#include "map/geometry/Segment.h"
#include "map/pins/PinShape.h"
#include "map/records/RouteStyle.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// How far `point` is from the box of a pin that is `scale` times as large as usual; 0 inside.
double distanceToPin(ScreenPoint point, ScreenPoint tip, double scale) {
    const double dx = std::abs(point.x - tip.x) - pinWidth / 2 * scale;
    const double above = tip.y - pinTipY * scale - point.y;
    const double below = point.y - tip.y - (pinHeight - pinTipY) * scale;
    return std::hypot(std::max(0.0, dx), std::max({0.0, above, below}));
}

double distanceToDot(ScreenPoint point, ScreenPoint dot, double radius) {
    return std::max(0.0, std::hypot(dot.x - point.x, dot.y - point.y) - radius - dotCasing);
}

/// The best record so far.
class Nearest {
  public:
    explicit Nearest(double reach) : m_distance(reach) {}

    /// Takes `asset` if it is at least as near as all before it.
    void offer(AssetIndex asset, double distance) {
        if (distance <= m_distance) {
            m_distance = distance;
            m_asset = asset;
        }
    }
    [[nodiscard]] std::optional<AssetIndex> asset() const { return m_asset; }

  private:
    double m_distance;
    std::optional<AssetIndex> m_asset;
};

/// What lies under the square of `reach` pixels around `point`.
MapRect areaAround(ScreenPoint point, double reach, const Camera& camera) {
    MapRect area = MapRect::null();
    for (const double dx : {-reach, reach}) {
        for (const double dy : {-reach, reach}) {
            const MapPoint corner = camera.screenToWorld({point.x + dx, point.y + dy});
            area = area.united({corner.x, corner.y, 0, 0});
        }
    }
    return area;
}

std::optional<AssetIndex> markerAt(ScreenPoint point, double reach, const HitScene& scene) {
    Nearest nearest(reach);
    const MapRect around = areaAround(point, reach + dotRadius + dotCasing, scene.camera);
    for (const double offset : worldCopyOffsets(around)) {
        for (std::size_t i = scene.markers.size(); i-- > 0;) { // the first is on top
            const Marker& marker = scene.markers[i];
            const MapPoint place{marker.point.x + offset, marker.point.y};
            if (around.contains(place)) {
                nearest.offer(
                    marker.asset,
                    distanceToDot(point, scene.camera.worldToScreen(place), dotRadiusOf(marker)));
            }
        }
    }
    for (const PlacedMarker& pin : scene.frame.pins) {
        nearest.offer(pin.asset, distanceToPin(point, pin.point, 1));
    }
    if (const auto& hovered = scene.frame.hovered) {
        nearest.offer(hovered->asset, distanceToPin(point, hovered->point, 1));
    }
    return nearest.asset();
}

std::optional<AssetIndex> routeAt(ScreenPoint point,
                                  double reach,
                                  double halfWidth,
                                  std::span<const RouteRun> runs,
                                  const HitScene& scene) {
    Nearest nearest(reach);
    LineView around = lineViewOf(scene.camera);
    around.seen = areaAround(point, reach + halfWidth, scene.camera);
    drawRouteLines(scene.geometry,
                   runs,
                   scene.colors,
                   around,
                   [&](AssetIndex asset, std::span<const ScreenPoint> line) {
                       for (ScreenPoint start = line.front(); const ScreenPoint& end : line) {
                           const double distance = distanceToSegment(point, start, end);
                           nearest.offer(asset, std::max(0.0, distance - halfWidth));
                           start = end;
                       }
                   });
    return nearest.asset();
}

bool hitsTheSelected(ScreenPoint point, double reach, const HitScene& scene) {
    if (const auto& marker = scene.frame.selected) {
        return distanceToPin(point, marker->point, selectedPinScale) <= reach;
    }
    return scene.selected &&
           routeAt(
               point, reach, selectedRouteWidth / 2, scene.geometry.runsOf(*scene.selected), scene);
}

} // namespace

std::optional<AssetIndex> hitTest(ScreenPoint point, double reach, const HitScene& scene) {
    if (hitsTheSelected(point, reach, scene)) {
        return scene.selected;
    }
    if (const auto mark = markerAt(point, reach, scene)) {
        return mark;
    }
    return routeAt(point, reach, routeWidth / 2, scene.geometry.runs(), scene);
}

std::vector<AssetIndex> sharingPlace(AssetIndex asset, std::span<const Marker> markers) {
    std::vector<AssetIndex> sharing;
    const auto place = std::find_if(
        markers.begin(), markers.end(), [asset](const Marker& m) { return m.asset == asset; });
    if (place == markers.end()) {
        return sharing;
    }
    for (const Marker& marker : markers) {
        const double dx = std::abs(marker.point.x - place->point.x) * Camera::maximumScale;
        const double dy = std::abs(marker.point.y - place->point.y) * Camera::maximumScale;
        if (dx < pinSpacingX && dy < pinSpacingY) {
            sharing.push_back(marker.asset);
        }
    }
    return sharing;
}

} // namespace vasker
