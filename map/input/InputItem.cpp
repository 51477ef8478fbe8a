#include "map/input/InputItem.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QTouchEvent>
#include <QWheelEvent>

namespace vasker {

namespace {

ScreenPoint screenPoint(QPointF position) {
    return {position.x(), position.y()};
}

double secondsOf(const QInputEvent& event) {
    return static_cast<double>(event.timestamp()) / 1000;
}

bool has(const QInputEvent& event, Qt::KeyboardModifier modifier) {
    return (event.modifiers() & modifier) != 0;
}

MapEvent pressOf(const QMouseEvent& event) {
    return PointerPress{screenPoint(event.position()),
                        event.button() == Qt::LeftButton,
                        has(event, Qt::ControlModifier)};
}

MapEvent doubleClickOf(const QMouseEvent& event) {
    return DoubleClick{screenPoint(event.position()),
                       event.button() == Qt::LeftButton,
                       has(event, Qt::ShiftModifier)};
}

std::optional<MapEvent> wheelOf(const QWheelEvent& event) {
    const ScreenPoint point = screenPoint(event.position());
    // Only with phases are the pixels those of a touchpad.
    if (event.phase() != Qt::NoScrollPhase && !event.pixelDelta().isNull()) {
        return TouchpadScroll{point, static_cast<double>(event.pixelDelta().y())};
    }
    if (event.angleDelta().y() != 0) {
        return WheelTurn{point, static_cast<double>(event.angleDelta().y())};
    }
    return std::nullopt;
}

MapEvent touchOf(const QTouchEvent& event) {
    Touch touch{{}, secondsOf(event)};
    for (const QEventPoint& point : event.points()) {
        if (point.state() != QEventPoint::Released) {
            touch.fingers.push_back(screenPoint(point.position()));
        }
    }
    return touch;
}

std::optional<MapEvent> gestureOf(const QNativeGestureEvent& event) {
    using Kind = TouchpadGesture::Kind;
    const auto gesture = [&event](Kind kind) {
        return TouchpadGesture{kind, screenPoint(event.position()), event.value()};
    };
    switch (event.gestureType()) {
    case Qt::BeginNativeGesture:
        return gesture(Kind::begin);
    case Qt::ZoomNativeGesture:
        return gesture(Kind::zoom);
    case Qt::RotateNativeGesture:
        return gesture(Kind::rotate);
    case Qt::EndNativeGesture:
        return gesture(Kind::end);
    default:
        return std::nullopt;
    }
}

/// Nothing for an event that is none of these.
std::optional<MapEvent> mapEvent(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return pressOf(static_cast<const QMouseEvent&>(event));
    case QEvent::MouseMove: {
        const auto& move = static_cast<const QMouseEvent&>(event);
        return PointerMove{screenPoint(move.position()), secondsOf(move)};
    }
    case QEvent::MouseButtonRelease: {
        const auto& release = static_cast<const QMouseEvent&>(event);
        return PointerRelease{release.button() == Qt::LeftButton, secondsOf(release)};
    }
    case QEvent::MouseButtonDblClick:
        return doubleClickOf(static_cast<const QMouseEvent&>(event));
    case QEvent::Wheel:
        return wheelOf(static_cast<const QWheelEvent&>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return touchOf(static_cast<const QTouchEvent&>(event));
    case QEvent::TouchCancel:
        return TouchLost{};
    case QEvent::NativeGesture:
        return gestureOf(static_cast<const QNativeGestureEvent&>(event));
    default:
        return std::nullopt;
    }
}

/// Keys with Ctrl, Alt or Meta are not the map's.
std::optional<MapEvent> mapEvent(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.type() == QEvent::KeyRelease) {
        return KeyRelease{event.key(), event.isAutoRepeat()};
    }
    if ((modifiers & ~Qt::ShiftModifier) != 0) {
        return std::nullopt;
    }
    return KeyPress{event.key(), modifiers != 0, event.isAutoRepeat()};
}

} // namespace

InputItem::InputItem(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
}

bool InputItem::event(QEvent* event) {
    const auto known = mapEvent(*event);
    if (!known) {
        return QQuickItem::event(event);
    }
    handle(*known);
    event->accept();
    return true;
}

void InputItem::mouseUngrabEvent() {
    handle(PointerLost{});
}

void InputItem::hoverMoveEvent(QHoverEvent* event) {
    hoverAt(event->position());
}

void InputItem::hoverLeaveEvent(QHoverEvent* /*event*/) {
    hoverAt(std::nullopt);
}

void InputItem::keyPressEvent(QKeyEvent* event) {
    const auto known = mapEvent(*event);
    event->setAccepted(known && handle(*known));
}

void InputItem::keyReleaseEvent(QKeyEvent* event) {
    const auto known = mapEvent(*event);
    event->setAccepted(known && handle(*known));
}

void InputItem::focusOutEvent(QFocusEvent* event) {
    handle(FocusLost{});
    QQuickItem::focusOutEvent(event);
}

} // namespace vasker
