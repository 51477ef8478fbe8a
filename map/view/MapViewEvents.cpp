// The events of MapView: pointer, wheel and fingers become picks and camera moves.

#include "map/view/MapView.h"

#include <QHoverEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QTouchEvent>
#include <QWheelEvent>

namespace vasker {

namespace {

ScreenPoint screenPoint(QPointF position) {
    return {position.x(), position.y()};
}

} // namespace

void MapView::move(const Camera& camera) {
    Q_EMIT moved(camera.visibleRect());
}

void MapView::mousePressEvent(QMouseEvent* event) {
    forceActiveFocus(Qt::MouseFocusReason);
    m_drag.emplace(screenPoint(event->position()));
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_drag) {
        return;
    }
    const Camera camera = resolvedCamera();
    const Camera panned = m_drag->moved(camera, screenPoint(event->position()));
    if (!m_drag->isClick()) {
        setCursor(Qt::ClosedHandCursor);
        setKeepMouseGrab(true);
        move(panned);
    }
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    if (m_drag && m_drag->isClick()) {
        const QString id = idOf(hit(m_drag->pressed()));
        m_lastClickHit = !id.isEmpty();
        Q_EMIT picked(id);
    }
    mouseUngrabEvent();
    event->accept();
}

void MapView::mouseUngrabEvent() {
    m_drag.reset();
    setKeepMouseGrab(false);
    unsetCursor();
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The first click of two on a record has framed it: the second has nothing left to do.
    if (!m_lastClickHit) {
        move(resolvedCamera().zoomed(doubleClickZoomFactor, screenPoint(event->position())));
    }
}

void MapView::wheelEvent(QWheelEvent* event) {
    move(resolvedCamera().zoomed(wheelZoomFactor(event->angleDelta().y()),
                                 screenPoint(event->position())));
    event->accept();
}

void MapView::touchEvent(QTouchEvent* event) {
    const auto& points = event->points();
    if (points.size() != 2 || event->type() == QEvent::TouchEnd ||
        event->type() == QEvent::TouchCancel) {
        m_pinch.reset();
        event->setAccepted(points.size() == 2);
        return;
    }
    const ScreenPoint first = screenPoint(points[0].position());
    const ScreenPoint second = screenPoint(points[1].position());
    if (m_pinch) {
        move(m_pinch->moved(resolvedCamera(), first, second));
    } else {
        m_pinch.emplace(first, second);
    }
    event->accept();
}

void MapView::hoverMoveEvent(QHoverEvent* event) {
    setCursor(hit(screenPoint(event->position())) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

bool MapView::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        const auto& gesture = *static_cast<QNativeGestureEvent*>(event);
        if (gesture.gestureType() == Qt::ZoomNativeGesture) {
            move(resolvedCamera().zoomed(1 + gesture.value(), screenPoint(gesture.position())));
            return true;
        }
    }
    return QQuickItem::event(event);
}

} // namespace vasker
