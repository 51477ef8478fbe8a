// The events of MapView: pointer, wheel and fingers become picks and camera moves.

#include "map/records/PinShape.h"
#include "map/view/MapView.h"
#include "presentation/CategoryText.h"

#include <QGuiApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QStyleHints>
#include <QTouchEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

constexpr double wheelZoomSeconds = 0.2;
constexpr double doubleClickZoomSeconds = 0.3;

ScreenPoint screenPoint(QPointF position) {
    return {position.x(), position.y()};
}

double secondsOf(const QInputEvent& event) {
    return static_cast<double>(event.timestamp()) / 1000;
}

/// The fingers that are on the screen.
std::vector<ScreenPoint> fingersOf(const QTouchEvent& event) {
    std::vector<ScreenPoint> fingers;
    for (const QEventPoint& point : event.points()) {
        if (point.state() != QEventPoint::Released) {
            fingers.push_back(screenPoint(point.position()));
        }
    }
    return fingers;
}

} // namespace

std::optional<AssetIndex> MapView::hit(ScreenPoint point, double reach) const {
    return m_mapRecords.hit(point, reach, resolvedCamera());
}

bool MapView::pick(ScreenPoint point, double reach) {
    const auto record = hit(point, reach);
    if (record) {
        auto sharing = m_mapRecords.sharingPlaceWith(*record);
        if (sharing.size() > 1 && m_mapRecords.idOf(record) != m_selection) {
            Q_EMIT choiceOffered(
                {records().loaded,
                 std::make_shared<const std::vector<AssetIndex>>(std::move(sharing))},
                QPointF(point.x, point.y));
            return true;
        }
    }
    Q_EMIT picked(m_mapRecords.idOf(record));
    return record.has_value();
}

void MapView::offerMenu(ScreenPoint point, double reach) {
    if (const auto record = hit(point, reach)) {
        Q_EMIT menuWanted(m_mapRecords.idOf(record), QPointF(point.x, point.y));
    }
}

void MapView::mousePressEvent(QMouseEvent* event) {
    forceActiveFocus(Qt::MouseFocusReason);
    m_motion.cancel();
    const ScreenPoint point = screenPoint(event->position());
    if (event->button() == Qt::RightButton || (event->modifiers() & Qt::ControlModifier) != 0) {
        m_drag.reset();
        m_turn.emplace(point);
    } else {
        m_turn.reset();
        m_drag.emplace(point);
        m_trail = {};
    }
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    const ScreenPoint point = screenPoint(event->position());
    if (m_drag) {
        dragTo(point, secondsOf(*event));
    } else if (m_turn) {
        const Camera camera = resolvedCamera();
        const Camera turned = m_turn->moved(camera, point);
        if (!m_turn->isClick()) {
            setCursor(Qt::SizeAllCursor);
            setKeepMouseGrab(true);
            move(turned);
        }
    }
}

void MapView::dragTo(ScreenPoint point, double seconds) {
    const Camera camera = resolvedCamera();
    const Camera panned = m_drag->moved(camera, point);
    if (!m_drag->isClick()) {
        setCursor(Qt::ClosedHandCursor);
        setKeepMouseGrab(true);
        move(panned);
        m_trail.add(panned.center(), seconds);
    }
}

void MapView::endDrag(double seconds) {
    m_drag.reset();
    m_motion.glide(resolvedCamera(), m_trail.velocityAt(seconds));
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    if (m_drag && event->button() == Qt::LeftButton) {
        if (m_drag->isClick()) {
            m_lastClickHit = pick(m_drag->pressed(), pointerReach);
        } else {
            endDrag(secondsOf(*event));
        }
    } else if (m_turn && !m_turn->isClick()) {
        settle();
    } else if (m_turn && event->button() == Qt::LeftButton) {
        m_lastClickHit = pick(m_turn->pressed(), pointerReach);
    } else if (m_turn) {
        offerMenu(m_turn->pressed(), pointerReach);
    }
    mouseUngrabEvent();
    event->accept();
}

void MapView::mouseUngrabEvent() {
    m_drag.reset();
    m_turn.reset();
    setKeepMouseGrab(false);
    unsetCursor();
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) {
    m_drag.reset(); // its press came just before; its release is no second click
    m_turn.reset();
    // The first click of two on a record has framed it: the second has nothing left to do.
    const bool isLeft = event->button() == Qt::LeftButton;
    if (isLeft && m_lastClickHit) {
        return;
    }
    const bool goesOut = !isLeft || (event->modifiers() & Qt::ShiftModifier) != 0;
    m_motion.zoom(resolvedCamera(),
                  goesOut ? 1 / doubleClickZoomFactor : doubleClickZoomFactor,
                  screenPoint(event->position()),
                  doubleClickZoomSeconds);
}

void MapView::wheelEvent(QWheelEvent* event) {
    const ScreenPoint point = screenPoint(event->position());
    // Only with phases are the pixels those of a touchpad; it moves smoothly by itself.
    if (event->phase() != Qt::NoScrollPhase && !event->pixelDelta().isNull()) {
        m_motion.cancel();
        move(resolvedCamera().zoomed(touchpadZoomFactor(event->pixelDelta().y()), point));
    } else if (event->angleDelta().y() != 0) {
        m_motion.zoom(
            resolvedCamera(), wheelZoomFactor(event->angleDelta().y()), point, wheelZoomSeconds);
    }
    event->accept();
}

void MapView::touchEvent(QTouchEvent* event) {
    event->accept();
    if (event->type() == QEvent::TouchCancel) {
        m_fingers = 0;
        m_pinch.reset();
        mouseUngrabEvent();
        return;
    }
    const std::vector<ScreenPoint> fingers = fingersOf(*event);
    const auto count = static_cast<qsizetype>(fingers.size());
    if (count == m_fingers) {
        if (m_pinch) {
            move(m_pinch->moved(resolvedCamera(), fingers[0], fingers[1]));
        } else if (m_drag) {
            dragTo(fingers[0], secondsOf(*event));
        }
        return;
    }
    // A finger came or went: what they do begins anew from where they are.
    const bool wasPinch = m_pinch.has_value();
    const std::optional<Drag> drag = m_drag;
    const bool isFirst = m_fingers == 0;
    m_fingers = count;
    m_pinch.reset();
    m_drag.reset();
    if (isFirst) {
        forceActiveFocus(Qt::MouseFocusReason);
        m_motion.cancel();
    }
    if (count >= 2) {
        m_pinch.emplace(fingers[0], fingers[1]);
    } else if (count == 1) {
        m_drag.emplace(fingers[0], isFirst ? touchDragThreshold : 0);
        m_trail = {};
    } else if (drag && drag->isClick()) {
        tap(drag->pressed(), static_cast<qint64>(event->timestamp()));
    } else if (drag) {
        endDrag(secondsOf(*event));
    }
    if (wasPinch && count < 2) {
        settle();
    }
    if (count == 0) {
        mouseUngrabEvent();
    }
}

void MapView::tap(ScreenPoint point, qint64 milliseconds) {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool isSecond =
        m_lastTap && milliseconds - m_lastTap->milliseconds <= hints.mouseDoubleClickInterval() &&
        std::hypot(point.x - m_lastTap->point.x, point.y - m_lastTap->point.y) <=
            hints.touchDoubleTapDistance();
    if (!isSecond) {
        m_lastTap = Tap{point, milliseconds, pick(point, touchReach)};
        return;
    }
    if (!m_lastTap->hit) {
        m_motion.zoom(resolvedCamera(), doubleClickZoomFactor, point, doubleClickZoomSeconds);
    }
    m_lastTap.reset();
}

void MapView::hoverMoveEvent(QHoverEvent* event) {
    const ScreenPoint point = screenPoint(event->position());
    const bool isFree = !m_drag && !m_turn && !isCovered(point);
    setPointed(isFree ? hit(point, pointerReach) : std::nullopt, point);
}

void MapView::hoverLeaveEvent(QHoverEvent* /*event*/) {
    setPointed(std::nullopt, {});
}

bool MapView::isCovered(ScreenPoint point) const {
    if (point.y >= height() - m_coveredBelow || point.x >= width() - m_coveredRight) {
        return true;
    }
    const QList<QQuickItem*> items = childItems();
    return std::any_of(items.begin(), items.end(), [&](QQuickItem* item) {
        return item->property("coversMap").toBool() &&
               item->contains(mapToItem(item, QPointF(point.x, point.y)));
    });
}

void MapView::setPointed(std::optional<AssetIndex> record, ScreenPoint pointer) {
    if (record == m_pointed) {
        return;
    }
    setCursor(record ? Qt::PointingHandCursor : Qt::ArrowCursor);
    m_pointed = record;
    const auto mark = record ? m_mapRecords.placeOf(*record, resolvedCamera()) : std::nullopt;
    m_pointedPlace = mark ? QPointF(mark->x, mark->y - pinTipY * hoveredPinScale)
                          : QPointF(pointer.x, pointer.y);
    Q_EMIT pointedChanged();
}

QString MapView::pointedName() const {
    return m_pointed ? QString::fromStdString(m_mapRecords.asset(*m_pointed).name) : QString();
}

QString MapView::pointedCaption() const {
    return m_pointed ? categoryLine(m_mapRecords.asset(*m_pointed)) : QString();
}

bool MapView::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        nativeGesture(*static_cast<QNativeGestureEvent*>(event));
        event->accept();
        return true;
    }
    return QQuickItem::event(event);
}

void MapView::nativeGesture(const QNativeGestureEvent& gesture) {
    const ScreenPoint point = screenPoint(gesture.position());
    switch (gesture.gestureType()) {
    case Qt::BeginNativeGesture:
        m_motion.cancel();
        break;
    case Qt::ZoomNativeGesture:
        m_motion.cancel();
        move(resolvedCamera().zoomed(1 + gesture.value(), point));
        break;
    case Qt::RotateNativeGesture: // clockwise; the ground goes with the fingers
        m_motion.cancel();
        move(resolvedCamera().turned(-gesture.value(), point));
        break;
    case Qt::EndNativeGesture:
        settle();
        break;
    default:
        break;
    }
}

} // namespace vasker
