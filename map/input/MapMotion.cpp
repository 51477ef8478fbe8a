#include "map/input/MapMotion.h"

#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace vasker {

namespace {

struct Moment {
    Camera camera;
    bool isLast;
};

template <typename Motion>
std::optional<Moment> momentOf(const Motion& motion, double seconds) {
    return std::visit(
        [&](const auto& each) -> std::optional<Moment> {
            if constexpr (std::is_same_v<std::decay_t<decltype(each)>, std::monostate>) {
                return std::nullopt;
            } else {
                return Moment{each.cameraAt(seconds), each.isFinished(seconds)};
            }
        },
        motion);
}

} // namespace

void MapMotion::setReduced(bool reduced) {
    m_reduced = reduced;
    if (reduced) {
        cancel();
    }
}

void MapMotion::begin(Motion motion) {
    cancel();
    if (m_reduced) {
        constexpr double end = std::numeric_limits<double>::max();
        Q_EMIT advanced(momentOf(motion, end)->camera);
        return;
    }
    m_motion = motion;
    start();
}

void MapMotion::startInertia(const Camera& now, MapVelocity velocity) {
    const Inertia motion(now, velocity);
    if (m_reduced || motion.isFinished(0)) {
        cancel();
    } else {
        begin(motion);
    }
}

void MapMotion::zoom(const Camera& now, double factor, ScreenPoint anchor, double duration) {
    if (const auto* running = std::get_if<SmoothZoom>(&m_motion)) {
        begin(running->continued(seconds(), factor, anchor, duration));
    } else {
        begin(SmoothZoom(now, factor, anchor, duration));
    }
}

void MapMotion::rotate(const Camera& now, double bearing, double pitch) {
    begin(SmoothRotation(now, bearing, pitch));
}

void MapMotion::press(const Camera& now, NavigationAxis axis, int direction, bool isRepeated) {
    if (m_reduced) {
        Q_EMIT advanced(stepped(now, axis, direction));
        return;
    }
    if (isRepeated) {
        return; // it is steered already, or something else has taken over
    }
    if (!std::holds_alternative<KeyNavigation>(m_motion)) {
        begin(KeyNavigation(now));
    }
    std::get<KeyNavigation>(m_motion).press(axis, direction, seconds());
}

void MapMotion::release(NavigationAxis axis, int direction) {
    if (auto* navigation = std::get_if<KeyNavigation>(&m_motion)) {
        navigation->release(axis, direction, seconds());
    }
}

void MapMotion::releaseAll() {
    if (auto* navigation = std::get_if<KeyNavigation>(&m_motion)) {
        navigation->releaseAll(seconds());
    }
}

void MapMotion::cancel() {
    stop();
    m_motion = std::monostate();
}

void MapMotion::updateCurrentTime(int milliseconds) {
    if (milliseconds == 0) {
        return; // the beginning: the camera is there
    }
    const auto moment = momentOf(m_motion, seconds());
    if (!moment) {
        return;
    }
    if (moment->isLast) {
        cancel();
    }
    Q_EMIT advanced(moment->camera);
}

} // namespace vasker
