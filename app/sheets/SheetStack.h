#pragma once
// The sheets of one window, of which at most one is on screen. Views request a sheet; it opens when
// no other is open.

#include <QObject>
#include <QtQmlIntegration>

#include <set>

namespace vasker {

class SheetStack : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each window has one")
    /// The sheet on screen, also while it leaves.
    Q_PROPERTY(Sheet current READ current NOTIFY changed)
    /// The same while it is to stay.
    Q_PROPERTY(Sheet shown READ shown NOTIFY changed)

  public:
    /// In the order in which they have their turn.
    enum class Sheet { NoSheet, Sources, Records, Inspector, Guide, Shortcuts, About };
    Q_ENUM(Sheet)

    using QObject::QObject;

    [[nodiscard]] Sheet current() const noexcept { return m_current; }
    [[nodiscard]] Sheet shown() const {
        return isRequested(m_current) ? m_current : Sheet::NoSheet;
    }
    /// Whether it is on screen, or waits for its turn, and is not to close.
    [[nodiscard]] bool isRequested(Sheet sheet) const { return m_requested.contains(sheet); }

    /// It is to be shown.
    Q_INVOKABLE void request(Sheet sheet);
    /// It is to close, or not to be shown any more.
    Q_INVOKABLE void dismiss(Sheet sheet);
    /// It has left the screen, by whatever means.
    Q_INVOKABLE void setClosed(Sheet sheet);

  Q_SIGNALS:
    void changed();
    void requestedChanged(Sheet sheet);
    /// It has left the screen; the next one has its turn when this has been dealt with.
    void closed(Sheet sheet);

  private:
    void present();

    std::set<Sheet> m_requested;
    Sheet m_current = Sheet::NoSheet;
};

} // namespace vasker
