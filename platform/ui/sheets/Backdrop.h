#pragma once
// Holds what lies behind a sheet. While it is covered, neither pointer, keyboard nor assistive
// tools reach anything in it.

#include <QQuickItem>

namespace vasker {

class Backdrop : public QQuickItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(BackdropItem)
    Q_PROPERTY(bool covered READ isCovered WRITE setCovered NOTIFY coveredChanged)

  public:
    explicit Backdrop(QQuickItem* parent = nullptr);

    [[nodiscard]] bool isCovered() const noexcept { return m_covered; }
    /// Disables the item while it is covered.
    void setCovered(bool covered);

  Q_SIGNALS:
    void coveredChanged();

  private:
    bool m_covered = false;
};

} // namespace vasker
