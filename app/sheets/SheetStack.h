#pragma once
// The sheets of one window. Views request a sheet; it opens when no other is open. Help opens over
// whatever is open, and leaves it as it was.

#include <QObject>
#include <QtQmlIntegration>

#include <set>

namespace vasker {

class SheetStack : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each window has one")
    /// The sheet on screen, also while it leaves; where help lies over another, help.
    Q_PROPERTY(Sheet current READ current NOTIFY changed)
    /// The sheet on screen that is no help, while it is to stay.
    Q_PROPERTY(Sheet shown READ shown NOTIFY changed)
    /// The same of help.
    Q_PROPERTY(Sheet shownHelp READ shownHelp NOTIFY changed)

  public:
    /// In the order in which they have their turn.
    enum class Sheet { NoSheet, Guide, Shortcuts, Sources, Records, Inspector, About };
    Q_ENUM(Sheet)

    using QObject::QObject;

    [[nodiscard]] Sheet current() const noexcept {
        return m_help != Sheet::NoSheet ? m_help : m_open;
    }
    [[nodiscard]] Sheet shown() const { return isRequested(m_open) ? m_open : Sheet::NoSheet; }
    [[nodiscard]] Sheet shownHelp() const { return isRequested(m_help) ? m_help : Sheet::NoSheet; }
    /// Whether it is on screen, or waits for its turn, and is not to close.
    [[nodiscard]] bool isRequested(Sheet sheet) const { return m_requested.contains(sheet); }

    /// It is to be shown. One sheet of help takes the place of the other.
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
    [[nodiscard]] Sheet& placeOf(Sheet sheet) noexcept;
    void present();

    std::set<Sheet> m_requested;
    Sheet m_open = Sheet::NoSheet;
    Sheet m_help = Sheet::NoSheet; ///< over it
};

} // namespace vasker
