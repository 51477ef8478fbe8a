#pragma once
// One request to the desktop's portal: it is sent, and its response comes when the user has
// decided. Nothing here waits.

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

class QWindow;

namespace vasker {

/// Where the portal is on the session bus.
inline const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");

/// What to ask of the portal: `method` of `interface`, with `options` after the other `arguments`.
struct PortalCall {
    QString interface;
    QString method;
    QVariantList arguments;
    QVariantMap options;
};

class PortalRequest : public QObject {
    Q_OBJECT

  public:
    /// `unavailable`: there is no portal, it cannot do this, or it failed to.
    enum class Outcome { done, cancelled, unavailable };
    using Answer = std::function<void(Outcome, const QVariantMap& results)>;

    /// Calls `answer` once, later, on the thread of `owner`; never when `owner` is gone by then. A
    /// bus that is not connected is fine: it has no portal. A portal or a bus that goes before it
    /// has answered counts as `unavailable`.
    static void send(const QDBusConnection& bus, PortalCall call, QObject* owner, Answer answer);

    /// How a portal is told which window a request belongs to; empty where that cannot be said.
    [[nodiscard]] static QString parentName(const QWindow* window);

  private Q_SLOTS:
    void respond(uint code, const QVariantMap& results);
    void giveUp();

  private:
    PortalRequest(const QDBusConnection& bus, QObject* owner, Answer answer);
    void noticeEnds();
    void listenAt(const QString& handle);
    void finish(Outcome outcome, const QVariantMap& results);

    QDBusConnection m_bus;
    QString m_handle;
    Answer m_answer;
};

} // namespace vasker
