#pragma once
// The controls over a map.

#include "map/geometry/ScreenRect.h"

#include <QList>
#include <QPointF>

#include <vector>

class QQuickItem;

namespace vasker {

class MapControls {
  public:
    QList<QQuickItem*> items;

    /// What the visible ones cover of `map`.
    [[nodiscard]] std::vector<ScreenRect> rects(const QQuickItem& map) const;
    /// Whether one of them covers that place of `map`.
    [[nodiscard]] bool cover(QPointF place, const QQuickItem& map) const;
};

} // namespace vasker
