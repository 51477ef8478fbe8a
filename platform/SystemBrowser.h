#pragma once
// Opens web addresses in the user's browser: through the desktop's portal where there is one.

#include <QDBusConnection>
#include <QObject>
#include <QtQmlIntegration>

class QJSEngine;
class QQmlEngine;

namespace vasker {

class SystemBrowser : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString unopened READ unopened NOTIFY unopenedChanged)
    Q_PROPERTY(QString message READ message NOTIFY unopenedChanged)

  public:
    /// Asks the portal on `bus`; one that is not connected is fine.
    explicit SystemBrowser(const QDBusConnection& bus, QObject* parent = nullptr);
    /// The one object of the process, made on first use.
    static SystemBrowser* create(QQmlEngine*, QJSEngine*);

    /// Has the browser open `address`, without waiting for it. Only an https address with a host
    /// ever leaves the program; for anything else the answer is false, and nothing happens.
    Q_INVOKABLE bool open(const QString& address);

    /// The address that was opened last, where no browser was found for it; else empty.
    [[nodiscard]] const QString& unopened() const noexcept { return m_unopened; }
    /// That in one sentence for the user; empty likewise.
    [[nodiscard]] QString message() const;

  Q_SIGNALS:
    void unopenedChanged();

  private:
    void setUnopened(const QString& address);

    QDBusConnection m_bus;
    QString m_unopened;
};

} // namespace vasker
