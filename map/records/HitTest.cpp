#include "map/records/HitTest.h"

#include "map/geometry/LineDetail.h"
#include "map/records/BalloonShape.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace vasker {

namespace {

bool hitsBalloon(ScreenPoint point, ScreenPoint tip, double scale) {
    const double dx = point.x - tip.x;
    const double dy = point.y - tip.y;
    return std::abs(dx) <= balloonWidth / 2 * scale + balloonHitMargin &&
           dy >= -balloonTipY * scale - balloonHitMargin &&
           dy <= (balloonHeight - balloonTipY) * scale + balloonHitMargin;
}

std::optional<AssetIndex> nearestDot(ScreenPoint point, const std::vector<PlacedMarker>& dots) {
    std::optional<AssetIndex> nearest;
    double best = dotHitRadius;
    for (const PlacedMarker& dot : dots) { // the later is drawn above: it wins a tie
        const double distance = std::hypot(dot.point.x - point.x, dot.point.y - point.y);
        if (distance <= best) {
            best = distance;
            nearest = dot.asset;
        }
    }
    return nearest;
}

/// The nearest line within `reach` map points of `point`.
std::optional<AssetIndex> nearestRoute(MapPoint point,
                                       double reach,
                                       std::span<const RouteRun> runs,
                                       const RecordGeometry& geometry,
                                       const RouteColors& colors) {
    std::optional<AssetIndex> nearest;
    double best = reach;
    for (const RouteRun& run : runs) {
        if (!colors[run.asset] || !run.bounds.inset(-reach, -reach).contains(point)) {
            continue;
        }
        const auto vertices = geometry.vertices(run);
        for (std::size_t i = 0; i + 1 < vertices.size(); ++i) {
            const double distance = distanceToSegment(point, vertices[i], vertices[i + 1]);
            if (distance <= best) {
                best = distance;
                nearest = run.asset;
            }
        }
    }
    return nearest;
}

} // namespace

std::optional<AssetIndex> hitTest(ScreenPoint point,
                                  const Camera& camera,
                                  const MarkerFrame& frame,
                                  const RecordGeometry& geometry,
                                  const RouteColors& colors,
                                  std::optional<AssetIndex> selected) {
    if (frame.selected && hitsBalloon(point, frame.selected->point, selectedBalloonScale)) {
        return frame.selected->asset;
    }
    const auto balloon =
        std::find_if(frame.balloons.rbegin(), frame.balloons.rend(), [&](const auto& candidate) {
            return hitsBalloon(point, candidate.point, 1);
        });
    if (balloon != frame.balloons.rend()) {
        return balloon->asset;
    }
    if (const auto dot = nearestDot(point, frame.dots)) {
        return dot;
    }
    const MapPoint ground = camera.screenToWorld(point);
    const double reach = routeHitDistance / camera.scale();
    if (selected) {
        const auto hit = nearestRoute(ground, reach, geometry.runsOf(*selected), geometry, colors);
        if (hit) {
            return hit;
        }
    }
    return nearestRoute(ground, reach, geometry.runs(), geometry, colors);
}

} // namespace vasker
