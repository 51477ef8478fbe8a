#include "map/geometry/Camera.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

bool isFinite(const CoordinateRegion& region) {
    return std::isfinite(region.center.latitude) && std::isfinite(region.center.longitude) &&
           std::isfinite(region.latitudeDelta) && std::isfinite(region.longitudeDelta);
}

bool isFinite(const MapRect& rect) {
    return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width) &&
           std::isfinite(rect.height);
}

MapRect boundsOf(const CoordinateRegion& region) {
    const MapPoint northWest =
        coordinateToMapPoint({region.center.latitude + region.latitudeDelta / 2,
                              region.center.longitude - region.longitudeDelta / 2});
    const MapPoint southEast =
        coordinateToMapPoint({region.center.latitude - region.latitudeDelta / 2,
                              region.center.longitude + region.longitudeDelta / 2});
    return {northWest.x, northWest.y, southEast.x - northWest.x, southEast.y - northWest.y};
}

/// The world's height fills the viewport at least.
double minimumScale(Viewport viewport) {
    return std::min(viewport.height / worldSize, Camera::maximumScale);
}

double clampedScale(double scale, Viewport viewport) {
    return std::clamp(scale, minimumScale(viewport), Camera::maximumScale);
}

/// A region keeps its own centre in the middle of the window. Its southern and northern half
/// differ in projected height, so the taller one decides how much must be shown.
struct Frame {
    MapPoint center;
    double halfWidth;
    double halfHeight;
};

Frame frameOf(const CoordinateRegion& region) {
    const MapRect bounds = boundsOf(region);
    const MapPoint center = coordinateToMapPoint(region.center);
    return {center,
            bounds.width / 2,
            std::max(center.y - bounds.y, bounds.y + bounds.height - center.y)};
}

Frame frameOf(const MapRect& rect) {
    return {rect.center(), rect.width / 2, rect.height / 2};
}

} // namespace

Camera::Camera(MapPoint center, double scale, Viewport viewport) noexcept
    : m_center{std::clamp(center.x, 0.0, worldSize), std::clamp(center.y, 0.0, worldSize)},
      m_scale(scale), m_viewport(viewport) {}

Camera::Camera(const CameraPosition& position, Viewport viewport)
    : Camera(MapPoint{0, 0}, 1, {std::max(1.0, viewport.width), std::max(1.0, viewport.height)}) {
    const bool usable = std::visit([](const auto& wish) { return isFinite(wish); }, position);
    const Frame frame = usable
                            ? std::visit([](const auto& wish) { return frameOf(wish); }, position)
                            : frameOf(canadaOverview);
    // A frame without extent asks for the nearest zoom: the quotients are then infinite.
    const double fit = std::min(m_viewport.width / (2 * std::max(0.0, frame.halfWidth)),
                                m_viewport.height / (2 * std::max(0.0, frame.halfHeight)));
    *this = Camera(frame.center, clampedScale(fit, m_viewport), m_viewport);
}

ScreenPoint Camera::worldToScreen(MapPoint point) const noexcept {
    return {(point.x - m_center.x) * m_scale + m_viewport.width / 2,
            (point.y - m_center.y) * m_scale + m_viewport.height / 2};
}

MapPoint Camera::screenToWorld(ScreenPoint point) const noexcept {
    return {(point.x - m_viewport.width / 2) / m_scale + m_center.x,
            (point.y - m_viewport.height / 2) / m_scale + m_center.y};
}

MapRect Camera::visibleRect() const noexcept {
    const double width = m_viewport.width / m_scale;
    const double height = m_viewport.height / m_scale;
    return {m_center.x - width / 2, m_center.y - height / 2, width, height};
}

Camera Camera::panned(double dx, double dy) const noexcept {
    return {{m_center.x - dx / m_scale, m_center.y - dy / m_scale}, m_scale, m_viewport};
}

Camera Camera::zoomed(double factor, ScreenPoint anchor) const noexcept {
    if (!(factor > 0)) {
        return *this;
    }
    const double scale = clampedScale(m_scale * factor, m_viewport);
    const MapPoint kept = screenToWorld(anchor);
    return {{kept.x - (anchor.x - m_viewport.width / 2) / scale,
             kept.y - (anchor.y - m_viewport.height / 2) / scale},
            scale,
            m_viewport};
}

} // namespace vasker
