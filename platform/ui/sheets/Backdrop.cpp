#include "platform/ui/sheets/Backdrop.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickWindow>

namespace vasker {

namespace {

// What assistive tools find instead of a covered backdrop: one thing with nothing in it. The items
// in it could each be ignored, but not those that are made later.
class CoveredBackdrop : public QAccessibleObject {
  public:
    explicit CoveredBackdrop(Backdrop* backdrop) : QAccessibleObject(backdrop) {}

    [[nodiscard]] QAccessibleInterface* parent() const override {
        for (QQuickItem* item = backdrop()->parentItem(); item != nullptr;
             item = item->parentItem()) {
            if (QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(item)) {
                return found;
            }
        }
        return QAccessible::queryAccessibleInterface(window());
    }
    [[nodiscard]] QWindow* window() const override { return backdrop()->window(); }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text) const override { return {}; }
    [[nodiscard]] QRect rect() const override {
        const QQuickItem& item = *backdrop();
        const QRectF scene = item.mapRectToScene(item.boundingRect());
        return item.window() != nullptr ? scene.translated(item.window()->position()).toRect()
                                        : QRect();
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Grouping; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.disabled = true;
        return state;
    }

  private:
    [[nodiscard]] Backdrop* backdrop() const { return static_cast<Backdrop*>(object()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    // Asked for also while it is not covered; then it is ignored, and what is in it found past it.
    auto* const backdrop = qobject_cast<Backdrop*>(object);
    return backdrop != nullptr ? new CoveredBackdrop(backdrop) : nullptr;
}

} // namespace

Backdrop::Backdrop(QQuickItem* parent) : QQuickItem(parent) {
    [[maybe_unused]] static const bool known = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
}

void Backdrop::setCovered(bool covered) {
    if (m_covered != covered) {
        m_covered = covered;
        setEnabled(!covered);
        Q_EMIT coveredChanged();
    }
}

} // namespace vasker
