#include "map/geometry/CameraMotion.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

// All in seconds and pixels per second.
constexpr double trailLength = 0.1;
constexpr double shortestTrail = 0.016; // two events of one frame tell no speed
constexpr double inertiaDecay = 0.325;
constexpr double slowestSpeed = 60;
constexpr double fastestSpeed = 5000;
constexpr double endSpeed = 5;

/// From 0 to 1 while time goes from 0 to 1: as a thing that comes to rest.
double easedOut(double part) {
    const double rest = 1 - std::clamp(part, 0.0, 1.0);
    return 1 - rest * rest * rest;
}

} // namespace

void DragTrail::add(MapPoint center, double seconds) {
    if (!m_samples.empty()) {
        const double jump = center.x - m_samples.back().center.x;
        center.x -= std::round(jump / worldSize) * worldSize;
    }
    std::erase_if(m_samples,
                  [&](const Sample& sample) { return sample.seconds < seconds - trailLength; });
    m_samples.push_back({center, seconds});
}

MapVelocity DragTrail::velocityAt(double seconds) const {
    const auto first = std::ranges::find_if(
        m_samples, [&](const Sample& sample) { return sample.seconds >= seconds - trailLength; });
    if (first == m_samples.end()) {
        return {};
    }
    const double time = std::max(seconds - first->seconds, shortestTrail);
    const MapPoint last = m_samples.back().center;
    return {(last.x - first->center.x) / time, (last.y - first->center.y) / time};
}

Inertia::Inertia(const Camera& camera, MapVelocity velocity)
    : m_start(camera), m_velocity(velocity) {
    const double speed = std::hypot(velocity.x, velocity.y) * camera.scale();
    if (speed < slowestSpeed || !std::isfinite(speed)) {
        m_velocity = {};
        return;
    }
    const double limited = std::min(speed, fastestSpeed);
    m_velocity = {velocity.x * limited / speed, velocity.y * limited / speed};
    m_duration = inertiaDecay * std::log(limited / endSpeed);
}

Camera Inertia::cameraAt(double seconds) const {
    const double time = std::clamp(seconds, 0.0, m_duration);
    const double way = inertiaDecay * (1 - std::exp(-time / inertiaDecay));
    CameraPose pose = m_start.pose();
    pose.center.x += m_velocity.x * way;
    pose.center.y += m_velocity.y * way;
    return {pose, m_start.viewport()};
}

SmoothZoom::SmoothZoom(const Camera& camera, double factor, ScreenPoint anchor, double duration)
    : m_start(camera), m_factor(camera.zoomed(factor, anchor).scale() / camera.scale()),
      m_anchor(anchor), m_duration(duration) {}

SmoothZoom
SmoothZoom::continued(double seconds, double factor, ScreenPoint anchor, double duration) const {
    const Camera now = cameraAt(seconds);
    const double rest = m_start.scale() * m_factor / now.scale();
    return {now, rest * (factor > 0 ? factor : 1), anchor, duration};
}

Camera SmoothZoom::cameraAt(double seconds) const {
    return m_start.zoomed(std::pow(m_factor, easedOut(seconds / m_duration)), m_anchor);
}

SmoothRotation::SmoothRotation(const Camera& camera, double bearing, double pitch)
    : m_start(camera), m_bearing(bearing), m_pitch(pitch),
      m_rotation(std::remainder(bearing - camera.pose().bearing, 360)) {}

Camera SmoothRotation::cameraAt(double seconds) const {
    CameraPose pose = m_start.pose();
    if (isFinished(seconds)) { // to the very bearing, without what rounding leaves
        pose.bearing = m_bearing;
        pose.pitch = m_pitch;
    } else {
        const double part = easedOut(seconds / duration);
        pose.bearing += part * m_rotation;
        pose.pitch += part * (m_pitch - pose.pitch);
    }
    return {pose, m_start.viewport()};
}

} // namespace vasker
