#include "map/view/MapInteraction.h"

#include <QCursor>
#include <QQuickItem>

#include <memory>
#include <utility>
#include <vector>

namespace vasker {

MapInteraction::MapInteraction(QQuickItem& map,
                               const MapRecords& records,
                               std::function<Camera()> camera)
    : m_map(map), m_records(records), m_camera(std::move(camera)), m_navigator(m_camera),
      m_hover(records) {
    m_navigator.pick = [this](const Pick& request) { return pick(request); };
    connect(&m_navigator, &MapNavigator::menuRequested, this, &MapInteraction::openMenu);
    connect(&m_navigator, &MapNavigator::focusRequested, this, [this] {
        m_map.forceActiveFocus(Qt::MouseFocusReason);
    });
}

bool MapInteraction::handle(const MapEvent& event) {
    const bool isHandled = m_navigator.handle(event);
    if (m_navigator.input().drag()) {
        m_hover.clear(); // Qt tells of no hovering while a button is pressed
    }
    refreshCursor();
    return isHandled;
}

void MapInteraction::hoverAt(std::optional<QPointF> place) {
    const bool rests = std::exchange(m_pointer, place) == place;
    if (rests && m_hover.isHeld()) {
        return;
    }
    const Camera camera = m_camera();
    if (!place || m_navigator.input().isPressed() ||
        !camera.viewport().isFree({place->x(), place->y()}) || m_controls.cover(*place, m_map)) {
        m_hover.clear();
    } else {
        const ScreenPoint point{place->x(), place->y()};
        m_hover.setRecord(recordAt(point, pointerReach), point, camera);
    }
    refreshCursor();
}

std::optional<AssetIndex> MapInteraction::recordAt(ScreenPoint point, double reach) const {
    return m_records.hit(point, reach, m_camera());
}

bool MapInteraction::pick(const Pick& request) {
    const auto record = recordAt(request.point, request.reach);
    auto sharing = record ? m_records.sharingPlaceWith(*record) : std::vector<AssetIndex>();
    if (sharing.size() > 1 && m_records.idOf(record) != m_records.selection()) {
        Q_EMIT choiceOffered({m_records.records().loaded,
                              std::make_shared<const std::vector<AssetIndex>>(std::move(sharing))},
                             QPointF(request.point.x, request.point.y));
    } else {
        Q_EMIT picked(m_records.idOf(record));
    }
    return record.has_value();
}

void MapInteraction::openMenu(ScreenPoint point, double reach) {
    if (const auto record = recordAt(point, reach)) {
        Q_EMIT menuRequested(m_records.idOf(record), QPointF(point.x, point.y));
    }
}

void MapInteraction::refreshCursor() {
    const auto drag = m_navigator.input().drag();
    m_map.setKeepMouseGrab(drag.has_value());
    m_map.setCursor(drag == DragKind::pan      ? Qt::ClosedHandCursor
                    : drag == DragKind::rotate ? Qt::SizeAllCursor
                    : m_hover.record()         ? Qt::PointingHandCursor
                                               : Qt::ArrowCursor);
}

} // namespace vasker
