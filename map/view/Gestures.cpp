#include "map/view/Gestures.h"

#include <cmath>

namespace vasker {

namespace {

/// A notch of a wheel is 120 eighths of a degree; two notches double the scale.
constexpr double angleDeltaPerDoubling = 240;

double distance(ScreenPoint a, ScreenPoint b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

ScreenPoint middle(ScreenPoint a, ScreenPoint b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

} // namespace

double wheelZoomFactor(double angleDelta) noexcept {
    return std::exp2(angleDelta / angleDeltaPerDoubling);
}

Camera Drag::moved(const Camera& camera, ScreenPoint point) noexcept {
    m_dragging = m_dragging || distance(m_pressed, point) >= dragThreshold;
    if (!m_dragging) {
        return camera;
    }
    const Camera panned = camera.panned(point.x - m_last.x, point.y - m_last.y);
    m_last = point;
    return panned;
}

Camera Pinch::moved(const Camera& camera, ScreenPoint first, ScreenPoint second) noexcept {
    const ScreenPoint before = middle(m_first, m_second);
    const ScreenPoint after = middle(first, second);
    const double spread = distance(m_first, m_second);
    const double factor = spread > 0 ? distance(first, second) / spread : 1;
    m_first = first;
    m_second = second;
    return camera.panned(after.x - before.x, after.y - before.y).zoomed(factor, after);
}

} // namespace vasker
