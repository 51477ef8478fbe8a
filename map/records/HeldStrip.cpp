#include "map/records/HeldStrip.h"

#include "map/records/RouteStrip.h"

#include <cmath>
#include <utility>

namespace vasker {

HeldStrip::Placed HeldStrip::shown(const RecordGeometry& geometry,
                                   std::span<const RouteRun> runs,
                                   const RouteColors& colors,
                                   const Camera& camera) {
    auto moved = shift(camera);
    if (!moved) {
        m_strip = std::make_shared<const LineStrip>(
            routeStrip(geometry, runs, colors, camera, camera.isFlat() ? margin : 0, mostPixels));
        m_camera = camera;
        moved = ScreenPoint{0, 0};
    }
    return {m_strip, *moved};
}

std::optional<ScreenPoint> HeldStrip::shift(const Camera& camera) const {
    if (!m_camera || m_camera->viewport() != camera.viewport()) {
        return std::nullopt;
    }
    CameraPose pose = camera.pose();
    pose.center = m_camera->center();
    if (pose != m_camera->pose()) {
        return std::nullopt;
    }
    if (camera.center() == m_camera->center()) {
        return ScreenPoint{0, 0};
    }
    const ScreenPoint place = camera.worldToScreen(m_camera->center());
    const ScreenPoint focus = camera.focus();
    const ScreenPoint moved{place.x - focus.x, place.y - focus.y};
    const bool isNear = std::abs(moved.x) <= margin && std::abs(moved.y) <= margin;
    return camera.isFlat() && isNear ? std::optional(moved) : std::nullopt;
}

} // namespace vasker
