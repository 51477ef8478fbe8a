#include "map/input/MapInput.h"

#include "map/records/HitTest.h"

#include <qnamespace.h>

#include <array>
#include <cmath>
#include <type_traits>
#include <utility>

namespace vasker {

namespace {

constexpr double wheelZoomSeconds = 0.2;
constexpr double doubleClickZoomSeconds = 0.3;

struct AxisStep {
    NavigationAxis axis;
    int direction;
};

/// What a key does by itself and with Shift.
struct NavigationKey {
    int key;
    AxisStep plain;
    AxisStep shifted;
};

constexpr AxisStep zoomIn{NavigationAxis::nearer, 1};
constexpr AxisStep zoomOut{NavigationAxis::nearer, -1};
// Plus and minus stand with Shift on some keyboards and without it on others.
constexpr std::array navigationKeys{
    NavigationKey{Qt::Key_Left, {NavigationAxis::right, -1}, {NavigationAxis::clockwise, -1}},
    NavigationKey{Qt::Key_Right, {NavigationAxis::right, 1}, {NavigationAxis::clockwise, 1}},
    NavigationKey{Qt::Key_Up, {NavigationAxis::down, -1}, {NavigationAxis::back, 1}},
    NavigationKey{Qt::Key_Down, {NavigationAxis::down, 1}, {NavigationAxis::back, -1}},
    NavigationKey{Qt::Key_Plus, zoomIn, zoomIn},
    NavigationKey{Qt::Key_Equal, zoomIn, zoomIn},
    NavigationKey{Qt::Key_Minus, zoomOut, zoomOut},
    NavigationKey{Qt::Key_Underscore, zoomOut, zoomOut},
};

const NavigationKey* navigationKey(int key) {
    const auto found = std::ranges::find(navigationKeys, key, &NavigationKey::key);
    return found == navigationKeys.end() ? nullptr : &*found;
}

/// After a rotation by hand: what is nearly upright is set upright.
MapCommands settle(const Camera& camera) {
    const CameraPose target = settled(camera.pose());
    if (target == camera.pose()) {
        return {};
    }
    return {StartRotation{target.bearing, target.pitch}};
}

} // namespace

std::optional<MapCommands> MapInput::handle(const MapEvent& event, const Camera& camera) {
    return std::visit(
        [&](const auto& each) -> std::optional<MapCommands> {
            using Event = std::decay_t<decltype(each)>;
            if constexpr (std::is_same_v<Event, KeyPress>) {
                return onKey(each, camera);
            } else if constexpr (std::is_same_v<Event, KeyRelease>) {
                return onKey(each);
            } else {
                return on(each, camera);
            }
        },
        event);
}

void MapInput::setPickHit(bool isHit) noexcept {
    if (m_isTapPick && m_lastTap) {
        m_lastTap->isHit = isHit;
    } else {
        m_lastClickHit = isHit;
    }
}

std::optional<DragKind> MapInput::drag() const noexcept {
    return m_drag && !m_drag->isClick() ? std::optional(m_drag->kind()) : std::nullopt;
}

MapCommands MapInput::on(const PointerPress& press, const Camera& /*camera*/) {
    const bool rotates = !press.isPrimary || press.withControl;
    m_drag.emplace(rotates ? DragKind::rotate : DragKind::pan, press.point);
    m_trail = {};
    return {TakeFocus{}, StopMotion{}};
}

MapCommands MapInput::on(const PointerMove& move, const Camera& camera) {
    return m_drag ? dragTo(move.point, move.seconds, camera) : MapCommands();
}

MapCommands MapInput::dragTo(ScreenPoint point, double seconds, const Camera& camera) {
    const Camera moved = m_drag->moved(camera, point);
    if (m_drag->isClick()) {
        return {};
    }
    m_trail.add(moved.center(), seconds);
    return {SetCamera{moved}};
}

MapCommands MapInput::on(const PointerRelease& release, const Camera& camera) {
    m_isTapPick = false;
    const auto drag = std::exchange(m_drag, std::nullopt);
    if (!drag) {
        return {};
    }
    const bool rotates = drag->kind() == DragKind::rotate;
    if (rotates && !drag->isClick()) {
        return settle(camera);
    }
    if (release.isPrimary) {
        return drag->isClick() ? MapCommands{Pick{drag->pressed(), pointerReach}}
                               : MapCommands{StartInertia{m_trail.velocityAt(release.seconds)}};
    }
    return rotates ? MapCommands{OpenMenu{drag->pressed(), pointerReach}} : MapCommands();
}

MapCommands MapInput::on(const DoubleClick& click, const Camera& /*camera*/) {
    m_drag.reset(); // its press came just before; its release is no second click
    // The first click of two on a record has framed it: the second has nothing left to do.
    if (click.isPrimary && m_lastClickHit) {
        return {};
    }
    const bool isOut = !click.isPrimary || click.withShift;
    return {StartZoom{isOut ? 1 / doubleClickZoomFactor : doubleClickZoomFactor,
                      click.point,
                      doubleClickZoomSeconds}};
}

MapCommands MapInput::on(const PointerLost& /*lost*/, const Camera& /*camera*/) {
    m_drag.reset();
    return {};
}

MapCommands MapInput::on(const WheelTurn& turn, const Camera& /*camera*/) {
    return {StartZoom{wheelZoomFactor(turn.angle), turn.point, wheelZoomSeconds}};
}

MapCommands MapInput::on(const TouchpadScroll& scroll, const Camera& camera) {
    return {StopMotion{},
            SetCamera{camera.zoomed(touchpadZoomFactor(scroll.pixels), scroll.point)}};
}

MapCommands MapInput::on(const TouchpadGesture& gesture, const Camera& camera) {
    switch (gesture.kind) {
    case TouchpadGesture::Kind::begin:
        return {StopMotion{}};
    case TouchpadGesture::Kind::zoom:
        return {StopMotion{}, SetCamera{camera.zoomed(1 + gesture.value, gesture.point)}};
    case TouchpadGesture::Kind::rotate: // the map goes with the fingers
        return {StopMotion{}, SetCamera{camera.rotated(-gesture.value, gesture.point)}};
    case TouchpadGesture::Kind::end:
        break;
    }
    return settle(camera);
}

MapCommands MapInput::on(const Touch& touch, const Camera& camera) {
    const std::size_t count = touch.fingers.size();
    if (count == m_fingers) {
        if (m_pinch) {
            return {SetCamera{m_pinch->moved(camera, touch.fingers[0], touch.fingers[1])}};
        }
        return m_drag ? dragTo(touch.fingers[0], touch.seconds, camera) : MapCommands();
    }
    // A finger came or went: what they do begins anew from where they are.
    const bool wasPinch = m_pinch.has_value();
    const bool isFirst = m_fingers == 0;
    const auto drag = std::exchange(m_drag, std::nullopt);
    m_fingers = count;
    m_pinch.reset();
    MapCommands commands;
    if (isFirst) {
        commands = {TakeFocus{}, StopMotion{}};
    }
    if (count >= 2) {
        m_pinch.emplace(touch.fingers[0], touch.fingers[1]);
    } else if (count == 1) {
        m_drag.emplace(DragKind::pan, touch.fingers[0], isFirst ? touchDragThreshold : 0);
        m_trail = {};
    } else if (drag && drag->isClick()) {
        commands = tap(drag->pressed(), touch.seconds);
    } else if (drag) {
        commands = {StartInertia{m_trail.velocityAt(touch.seconds)}};
    }
    if (wasPinch && count < 2) {
        for (const MapCommand& each : settle(camera)) {
            commands.push_back(each);
        }
    }
    return commands;
}

MapCommands MapInput::tap(ScreenPoint point, double seconds) {
    const bool isSecond = m_lastTap && seconds - m_lastTap->seconds <= m_doubleTap.seconds &&
                          std::hypot(point.x - m_lastTap->point.x, point.y - m_lastTap->point.y) <=
                              m_doubleTap.pixels;
    if (!isSecond) {
        m_lastTap = Tap{point, seconds};
        m_isTapPick = true;
        return {Pick{point, touchReach}};
    }
    const bool wasHit = m_lastTap->isHit;
    m_lastTap.reset();
    return wasHit ? MapCommands()
                  : MapCommands{StartZoom{doubleClickZoomFactor, point, doubleClickZoomSeconds}};
}

MapCommands MapInput::on(const TouchLost& /*lost*/, const Camera& /*camera*/) {
    m_fingers = 0;
    m_pinch.reset();
    m_drag.reset();
    return {};
}

MapCommands MapInput::on(const FocusLost& /*lost*/, const Camera& /*camera*/) {
    return {ReleaseAllAxes{}};
}

std::optional<MapCommands> MapInput::onKey(const KeyPress& press, const Camera& camera) {
    if (const NavigationKey* const key = navigationKey(press.key)) {
        const AxisStep step = press.withShift ? key->shifted : key->plain;
        return MapCommands{PressAxis{step.axis, step.direction, press.isRepeated}};
    }
    m_isTapPick = false;
    switch (press.key) {
    case Qt::Key_N:
        return MapCommands{StartRotation{0, 0}};
    case Qt::Key_Home:
        return MapCommands{ShowOverview{}};
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return press.isRepeated ? MapCommands() : MapCommands{Pick{camera.focus(), touchReach}};
    case Qt::Key_Menu:
        return MapCommands{OpenMenu{camera.focus(), touchReach}};
    case Qt::Key_F10:
        return press.withShift ? std::optional(MapCommands{OpenMenu{camera.focus(), touchReach}})
                               : std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<MapCommands> MapInput::onKey(const KeyRelease& release) {
    const NavigationKey* const key = navigationKey(release.key);
    if (key == nullptr) {
        return std::nullopt;
    }
    if (release.isRepeated) {
        return MapCommands();
    }
    // Shift may have been released before.
    return MapCommands{ReleaseAxis{key->plain.axis, key->plain.direction},
                       ReleaseAxis{key->shifted.axis, key->shifted.direction}};
}

} // namespace vasker
