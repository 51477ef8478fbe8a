#pragma once
// The controls over a map.

#include "map/geometry/ScreenRect.h"

#include <QList>
#include <QPointF>
#include <QQmlListProperty>

#include <functional>
#include <vector>

class QObject;
class QQuickItem;

namespace vasker {

class MapControls {
  public:
    using List = QQmlListProperty<QQuickItem>;

    QList<QQuickItem*> items;

    /// The items as a property of `map`.
    [[nodiscard]] List listFor(QObject* map) { return {map, &items}; }

    /// Calls `changed` whenever another part of the map is covered, as long as `receiver` lives.
    void watch(const QObject* receiver, const std::function<void()>& changed) const;
    /// What the visible ones cover of `map`.
    [[nodiscard]] std::vector<ScreenRect> rects(const QQuickItem& map) const;
    /// Whether one of them covers that place of `map`.
    [[nodiscard]] bool cover(QPointF place, const QQuickItem& map) const;
};

} // namespace vasker
