#pragma once
// Has screen readers say what happens away from the focus: the announcement signal of the
// accessibility bus, polite, so that nobody is interrupted. Screen readers that do not listen to it
// get a notification instead, if they listen to those: an object that shows for a while.

#include <QQuickItem>
#include <QString>
#include <QStringList>
#include <QTimer>

class QDBusConnection;
class QDBusMessage;

namespace vasker {

/// In QML it gets the role of a notification, and its notice as name; without a notice it is
/// ignored.
class Announcer : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// What the notification says; mostly empty.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)

  public:
    explicit Announcer(QQuickItem* parent = nullptr);

    [[nodiscard]] const QString& notice() const noexcept { return m_notice; }

    /// Announces `text` for the item's window. A program that has just started waits some seconds
    /// for the bus; without one, and for an empty text, nothing happens.
    Q_INVOKABLE void announce(const QString& text);

  Q_SIGNALS:
    void noticeChanged();

  private:
    void send();
    /// Whether the bus has taken it.
    [[nodiscard]] bool signal(const QDBusConnection& bus, const QString& text) const;
    void showUnlessHeard(const QDBusConnection& bus, const QString& text);
    void setNotice(const QString& text);

    QStringList m_waiting;
    int m_triesLeft = 0;
    QTimer m_retry;
    QStringList m_unheard; ///< of the next notice
    QTimer m_gather;
    QTimer m_end; ///< of the notice
    QString m_notice;
};

} // namespace vasker
