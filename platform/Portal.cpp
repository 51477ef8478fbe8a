#include "platform/Portal.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace vasker {

namespace {

// Where the portal puts the request of this caller with this token.
QString requestPath(const QDBusConnection& bus, const QString& token) {
    QString caller = bus.baseService().mid(1);
    caller.replace(u'.', u'_');
    return portalPath + QStringLiteral("/request/%1/%2").arg(caller, token);
}

} // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, QObject* owner, Answer answer)
    : QObject(owner), m_bus(bus), m_answer(std::move(answer)) {}

void PortalRequest::send(const QDBusConnection& bus,
                         PortalCall call,
                         QObject* owner,
                         Answer answer) {
    auto* request = new PortalRequest(bus, owner, std::move(answer));
    if (!bus.isConnected()) {
        QTimer::singleShot(0, request, &PortalRequest::giveUp);
        return;
    }
    const QString token =
        QStringLiteral("vasker%1").arg(QRandomGenerator::global()->generate64(), 0, 36);
    call.options.insert(QStringLiteral("handle_token"), token);
    QDBusMessage message =
        QDBusMessage::createMethodCall(portalService, portalPath, call.interface, call.method);
    message.setArguments(call.arguments << call.options);
    request->noticeEnds();
    // The answer may come before the reply to the call: listening starts first.
    request->listenAt(requestPath(bus, token));
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), request);
    connect(watcher, &QDBusPendingCallWatcher::finished, request, [request, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError()) {
            request->giveUp();
        } else {
            request->listenAt(reply.value().path());
        }
    });
}

QString PortalRequest::parentName(const QWindow* window) {
    if (window == nullptr || QGuiApplication::platformName() != u"xcb") {
        return {};
    }
    return QStringLiteral("x11:%1").arg(window->winId(), 0, 16);
}

/// With the portal its dialog goes, and no answer comes any more.
void PortalRequest::noticeEnds() {
    const auto* const watcher = new QDBusServiceWatcher(
        portalService, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher,
            &QDBusServiceWatcher::serviceOwnerChanged,
            this,
            [this](const QString&, const QString& before) {
                if (!before.isEmpty()) { // else the call has started it
                    giveUp();
                }
            });
    m_bus.connect(QString(),
                  QStringLiteral("/org/freedesktop/DBus/Local"),
                  QStringLiteral("org.freedesktop.DBus.Local"),
                  QStringLiteral("Disconnected"),
                  this,
                  SLOT(giveUp()));
}

void PortalRequest::listenAt(const QString& handle) {
    if (m_handle != handle) {
        m_handle = handle;
        // From whomever: to name the portal would mean to wait for the bus to tell who that is.
        m_bus.connect(QString(),
                      handle,
                      QStringLiteral("org.freedesktop.portal.Request"),
                      QStringLiteral("Response"),
                      this,
                      SLOT(respond(uint, QVariantMap)));
    }
}

// The portal's numbers: 0 it is done, 1 the user said no, 2 it went wrong.
void PortalRequest::respond(uint code, const QVariantMap& results) {
    switch (code) {
    case 0:
        return finish(Outcome::done, results);
    case 1:
        return finish(Outcome::cancelled, results);
    default:
        return finish(Outcome::unavailable, results);
    }
}

void PortalRequest::giveUp() {
    finish(Outcome::unavailable, {});
}

void PortalRequest::finish(Outcome outcome, const QVariantMap& results) {
    if (const Answer answer = std::exchange(m_answer, nullptr)) {
        deleteLater();
        answer(outcome, results);
    }
}

} // namespace vasker
