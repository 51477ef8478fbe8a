#include "map/geometry/Camera.h"

#include <algorithm>
#include <cmath>
#include <numbers>

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

bool isFinite(ScreenPoint point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

bool isFinite(const CameraPose& pose) {
    return std::isfinite(pose.center.x) && std::isfinite(pose.center.y) &&
           std::isfinite(pose.scale) && std::isfinite(pose.bearing) && std::isfinite(pose.pitch);
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

/// The whole world fits into the viewport's free part.
double minimumScale(Viewport viewport) {
    const ScreenPoint half = viewport.freeHalf();
    return std::min(2 * std::min(half.x, half.y) / worldSize, Camera::maximumScale);
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

bool isFinite(const Frame& frame) {
    return std::isfinite(frame.center.x) && std::isfinite(frame.center.y) &&
           std::isfinite(frame.halfWidth) && std::isfinite(frame.halfHeight);
}

/// From the camera to its centre on the map plane, in pixels.
double distance(Viewport viewport) {
    return 1.5 * viewport.height;
}

/// In degrees, [0, 360).
double normalizedBearing(double degrees) {
    const double rest = std::fmod(degrees, 360);
    return rest < 0 ? std::fmod(rest + 360, 360) : rest;
}

/// [0, worldSize). A step to the west so small that it is lost in worldSize ends at 0.
double normalizedX(double x) {
    const double east = std::fmod(x, worldSize);
    return east < 0 ? std::fmod(east + worldSize, worldSize) : east;
}

/// No place is farther away than this many times the distance of the camera's centre.
constexpr double farthest = 20;

} // namespace

std::vector<double> worldCopyOffsets(const MapRect& rect) {
    std::vector<double> offsets;
    const double first = std::floor(rect.x / worldSize);
    const double last = std::floor((rect.x + rect.width) / worldSize);
    const auto copies = static_cast<int>(last - first);
    for (int copy = 0; copy <= copies; ++copy) {
        offsets.push_back((first + copy) * worldSize);
    }
    return offsets;
}

Camera::Camera(const CameraPose& pose, Viewport viewport)
    : Camera(CameraPosition(pose), viewport) {}

Camera::Camera(const CameraPosition& position, Viewport viewport)
    : m_pose{{0, 0}, 1}, m_viewport(viewport.usable()) {
    if (!std::visit([](const auto& each) { return isFinite(each); }, position)) {
        *this = Camera(CameraPosition(canadaOverview), viewport);
        return;
    }
    if (const auto* pose = std::get_if<CameraPose>(&position)) {
        setPose(*pose);
        return;
    }
    const auto* region = std::get_if<CoordinateRegion>(&position);
    const Frame frame = region != nullptr ? frameOf(*region) : frameOf(std::get<MapRect>(position));
    if (!isFinite(frame)) { // numbers so large that their projection is none
        *this = Camera(CameraPosition(canadaOverview), viewport);
        return;
    }
    // A frame without extent asks for the nearest zoom: the quotients are then infinite.
    const ScreenPoint half = m_viewport.freeHalf();
    setPose({frame.center,
             std::min(half.x / std::max(0.0, frame.halfWidth),
                      half.y / std::max(0.0, frame.halfHeight))});
}

void Camera::setPose(const CameraPose& pose) noexcept {
    m_pose = {{normalizedX(pose.center.x), std::clamp(pose.center.y, 0.0, worldSize)},
              clampedScale(pose.scale, m_viewport),
              normalizedBearing(pose.bearing),
              std::clamp(pose.pitch, 0.0, maximumPitch)};
    const double bearing = m_pose.bearing * std::numbers::pi / 180;
    const double pitch = m_pose.pitch * std::numbers::pi / 180;
    m_bearingSine = std::sin(bearing);
    m_bearingCosine = std::cos(bearing);
    m_pitchSine = std::sin(pitch);
    m_pitchCosine = std::cos(pitch);
}

ScreenPoint Camera::focus() const noexcept {
    return m_viewport.middle();
}

PerspectivePoint Camera::worldToPerspective(MapPoint point) const noexcept {
    const double east = (point.x - m_pose.center.x) * m_pose.scale;
    const double south = (point.y - m_pose.center.y) * m_pose.scale;
    const double right = east * m_bearingCosine + south * m_bearingSine;
    const double down = south * m_bearingCosine - east * m_bearingSine;
    const double w = 1 - down * m_pitchSine / distance(m_viewport);
    const ScreenPoint middle = focus();
    return {middle.x * w + right, middle.y * w + down * m_pitchCosine, w};
}

ScreenPoint Camera::worldToScreen(MapPoint point) const noexcept {
    const PerspectivePoint p = worldToPerspective(point);
    return {p.x / p.w, p.y / p.w};
}

MapPoint Camera::screenToWorld(ScreenPoint point) const noexcept {
    const ScreenPoint middle = focus();
    const double x = point.x - middle.x;
    const double y = point.y - middle.y;
    // down = y * w / cos and w = 1 - down * sin / distance, solved for w.
    const double w = std::min(
        farthest,
        1 / std::max(1 / farthest, 1 + y * m_pitchSine / (m_pitchCosine * distance(m_viewport))));
    const double right = x * w;
    const double down = y * w / m_pitchCosine;
    return {m_pose.center.x + (right * m_bearingCosine - down * m_bearingSine) / m_pose.scale,
            m_pose.center.y + (down * m_bearingCosine + right * m_bearingSine) / m_pose.scale};
}

std::array<MapPoint, 4> Camera::visibleCorners(double margin) const noexcept {
    const double right = m_viewport.width + margin;
    const double bottom = m_viewport.height + margin;
    return {screenToWorld({-margin, -margin}),
            screenToWorld({right, -margin}),
            screenToWorld({right, bottom}),
            screenToWorld({-margin, bottom})};
}

MapRect Camera::visibleRect(double margin) const noexcept {
    MapRect bounds = MapRect::null();
    for (const MapPoint& corner : visibleCorners(margin)) {
        bounds = bounds.united({corner.x, corner.y, 0, 0});
    }
    return bounds;
}

Camera Camera::posed(const CameraPose& pose) const {
    return isFinite(pose) ? Camera(pose, m_viewport) : *this;
}

Camera Camera::withPointAt(MapPoint point, ScreenPoint place) const {
    const MapPoint there = screenToWorld(place);
    CameraPose pose = m_pose;
    pose.center = {pose.center.x + point.x - there.x, pose.center.y + point.y - there.y};
    return posed(pose);
}

Camera Camera::dragged(ScreenPoint from, ScreenPoint to) const {
    return withPointAt(screenToWorld(from), to);
}

Camera Camera::panned(double rightPixels, double downPixels) const {
    CameraPose pose = m_pose;
    pose.center.x += (rightPixels * m_bearingCosine - downPixels * m_bearingSine) / pose.scale;
    pose.center.y += (downPixels * m_bearingCosine + rightPixels * m_bearingSine) / pose.scale;
    return posed(pose);
}

Camera Camera::zoomed(double factor, ScreenPoint anchor) const {
    if (!(factor > 0) || !std::isfinite(factor) || !isFinite(anchor)) {
        return *this;
    }
    CameraPose pose = m_pose;
    pose.scale = clampedScale(pose.scale * factor, m_viewport);
    return posed(pose).withPointAt(screenToWorld(anchor), anchor);
}

Camera Camera::rotated(double degrees, ScreenPoint anchor) const {
    if (!isFinite(anchor)) {
        return *this;
    }
    CameraPose pose = m_pose;
    pose.bearing += degrees;
    return posed(pose).withPointAt(screenToWorld(anchor), anchor);
}

Camera Camera::tilted(double degrees) const {
    CameraPose pose = m_pose;
    pose.pitch += degrees;
    return posed(pose);
}

} // namespace vasker
