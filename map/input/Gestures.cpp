#include "map/input/Gestures.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace vasker {

namespace {

/// A notch of a wheel is 120 eighths of a degree; two notches double the scale.
constexpr double angleDeltaPerDoubling = 240;
constexpr double touchpadPixelsPerDoubling = 150;
constexpr double rotateDegreesPerPixel = 0.5;
constexpr double tiltDegreesPerPixel = 0.4;
/// Fingers that spread are never quite straight.
constexpr double pinchRotateThreshold = 8;
constexpr double settlingDegrees = 4;

double distance(ScreenPoint a, ScreenPoint b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

ScreenPoint middle(ScreenPoint a, ScreenPoint b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

/// The direction from `a` to `b` in degrees, clockwise on the screen.
double direction(ScreenPoint a, ScreenPoint b) {
    return std::atan2(b.y - a.y, b.x - a.x) * 180 / std::numbers::pi;
}

} // namespace

double wheelZoomFactor(double angleDelta) noexcept {
    return std::exp2(angleDelta / angleDeltaPerDoubling);
}

double touchpadZoomFactor(double pixels) noexcept {
    return std::exp2(pixels / touchpadPixelsPerDoubling);
}

CameraPose settled(const CameraPose& pose) noexcept {
    CameraPose result = pose;
    if (std::abs(std::remainder(pose.bearing, 360)) < settlingDegrees) {
        result.bearing = 0;
    }
    if (pose.pitch < settlingDegrees) {
        result.pitch = 0;
    }
    return result;
}

Camera Drag::moved(const Camera& camera, ScreenPoint point) noexcept {
    m_isDragging = m_isDragging || distance(m_pressed, point) >= m_threshold;
    if (!m_isDragging) {
        return camera;
    }
    const ScreenPoint last = std::exchange(m_last, point);
    return m_kind == DragKind::pan
               ? camera.dragged(last, point)
               : camera.rotated((point.x - last.x) * rotateDegreesPerPixel, camera.focus())
                     .tilted((last.y - point.y) * tiltDegreesPerPixel);
}

double Pinch::rotationFor(double degrees) noexcept {
    m_twist += degrees;
    if (m_rotating) {
        return -degrees;
    }
    const double beyond = std::abs(m_twist) - pinchRotateThreshold;
    m_rotating = beyond >= 0;
    return m_rotating ? -std::copysign(beyond, m_twist) : 0;
}

Camera Pinch::moved(const Camera& camera, ScreenPoint first, ScreenPoint second) noexcept {
    const ScreenPoint before = middle(m_first, m_second);
    const ScreenPoint after = middle(first, second);
    const double spread = distance(m_first, m_second);
    const bool hasDirection = spread > 0 && distance(first, second) > 0;
    const double factor = hasDirection ? distance(first, second) / spread : 1;
    const double rotation = hasDirection
                                ? rotationFor(std::remainder(
                                      direction(first, second) - direction(m_first, m_second), 360))
                                : 0;
    m_first = first;
    m_second = second;
    return camera.dragged(before, after).zoomed(factor, after).rotated(rotation, after);
}

} // namespace vasker
