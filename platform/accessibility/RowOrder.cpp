#include "platform/accessibility/RowOrder.h"

#include <algorithm>
#include <chrono>

namespace vasker {

namespace {

/// Ordering costs the scene graph a new order of drawing: not for each row that scrolls in.
constexpr std::chrono::milliseconds delay{100};

int positionOf(const QQuickItem* row) {
    return row->property("positionInSet").toInt();
}

} // namespace

RowOrder::RowOrder(QObject* parent) : QObject(parent) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(delay);
    connect(&m_soon, &QTimer::timeout, this, &RowOrder::order);
}

void RowOrder::refresh() {
    if (!m_soon.isActive()) {
        m_soon.start();
    }
}

void RowOrder::order() const {
    if (m_parent == nullptr) {
        return;
    }
    QList<QQuickItem*> rows = m_parent->childItems();
    rows.removeIf([](const QQuickItem* item) { return positionOf(item) <= 0; });
    if (std::ranges::is_sorted(rows, {}, positionOf)) {
        return;
    }
    std::ranges::stable_sort(rows, {}, positionOf);
    for (qsizetype row = 1; row < rows.size(); ++row) {
        rows[row]->stackAfter(rows[row - 1]);
    }
}

} // namespace vasker
