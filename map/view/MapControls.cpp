#include "map/view/MapControls.h"

#include <QQuickItem>

#include <algorithm>

namespace vasker {

namespace {

bool isSeen(const QQuickItem& item) {
    return item.isVisible() && item.opacity() > 0;
}

} // namespace

void MapControls::watch(const QObject* receiver, const std::function<void()>& changed) const {
    for (const QQuickItem* const item : items) {
        for (const auto signal : {&QQuickItem::xChanged,
                                  &QQuickItem::yChanged,
                                  &QQuickItem::widthChanged,
                                  &QQuickItem::heightChanged,
                                  &QQuickItem::visibleChanged,
                                  &QQuickItem::opacityChanged}) {
            QObject::connect(item, signal, receiver, changed);
        }
    }
}

std::vector<ScreenRect> MapControls::rects(const QQuickItem& map) const {
    std::vector<ScreenRect> rects;
    for (const QQuickItem* const item : items) {
        if (isSeen(*item)) {
            const QRectF rect = item->mapRectToItem(&map, item->boundingRect());
            rects.push_back({rect.x(), rect.y(), rect.width(), rect.height()});
        }
    }
    return rects;
}

bool MapControls::cover(QPointF place, const QQuickItem& map) const {
    return std::ranges::any_of(items, [&](const QQuickItem* item) {
        return isSeen(*item) && item->contains(map.mapToItem(item, place));
    });
}

} // namespace vasker
