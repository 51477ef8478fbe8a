#include "platform/accessibility/Announcer.h"

#include "platform/accessibility/AccessibilityBus.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QQuickWindow>
#include <QVariantMap>

#include <algorithm>
#include <chrono>

namespace vasker {

namespace {

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
/// ATSPI_LIVE_POLITE.
constexpr int polite = 1;
#endif

constexpr std::chrono::milliseconds retryTime{250};
constexpr int tries = 20;
constexpr std::chrono::seconds noticeTime{4};
/// What is said within this time is one notice: a reader asks for its text a moment after it shows.
constexpr std::chrono::milliseconds gatherTime{100};

/// "object:state-changed:showing" as one word, however a program has written it.
QString plain(const QString& event) {
    return event.toLower().remove(u'-').remove(u':');
}

/// Who has registered for "object", say, hears all that begins so.
bool isHeard(const QStringList& registered, const QString& event) {
    return std::ranges::any_of(registered, [&](const QString& each) {
        return !each.isEmpty() && plain(event).startsWith(each);
    });
}

/// The events that assistive tools have registered for, each plain().
QStringList registeredEvents(const QDBusMessage& reply) {
    QStringList events;
    if (reply.signature() != u"a(ss)") {
        return events;
    }
    const auto list = reply.arguments().constFirst().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        QString tool;
        QString event;
        list.beginStructure();
        list >> tool >> event;
        list.endStructure();
        events.append(plain(event));
    }
    return events;
}

} // namespace

Announcer::Announcer(QQuickItem* parent) : QQuickItem(parent) {
    setVisible(false);
    m_retry.setSingleShot(true);
    m_retry.setInterval(retryTime);
    connect(&m_retry, &QTimer::timeout, this, &Announcer::send);
    m_gather.setSingleShot(true);
    m_gather.setInterval(gatherTime);
    connect(&m_gather, &QTimer::timeout, this, [this] {
        setNotice(std::exchange(m_unheard, {}).join(QStringLiteral(". ")));
    });
    m_end.setSingleShot(true);
    m_end.setInterval(noticeTime);
    connect(&m_end, &QTimer::timeout, this, [this] { setNotice({}); });
}

void Announcer::announce(const QString& text) {
    if (!text.isEmpty()) {
        m_waiting.append(text);
        m_triesLeft = tries;
        send();
    }
}

void Announcer::send() {
    const QDBusConnection bus(bridgeConnection);
    if (bus.isConnected() && window() != nullptr) {
        for (const QString& text : std::exchange(m_waiting, {})) {
            if (signal(bus, text)) {
                showUnlessHeard(bus, text);
            }
        }
    } else if (--m_triesLeft > 0) {
        m_retry.start();
    } else {
        m_waiting.clear();
    }
}

bool Announcer::signal(const QDBusConnection& bus, const QString& text) const {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    Q_UNUSED(bus); // the bridge's
    QAccessibleAnnouncementEvent event(window(), text);
    QAccessible::updateAccessibility(&event);
    return true;
#else
    QAccessibleInterface* const source = QAccessible::queryAccessibleInterface(window());
    if (source == nullptr) {
        return false;
    }
    const QString path = controlTree + u'/' + QString::number(QAccessible::uniqueId(source));
    QDBusMessage message = QDBusMessage::createSignal(
        path, QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("Announcement"));
    message << QString() << polite << 0 << QVariant::fromValue(QDBusVariant(text)) << QVariantMap();
    return bus.send(message);
#endif
}

void Announcer::showUnlessHeard(const QDBusConnection& bus, const QString& text) {
    const QDBusMessage question =
        QDBusMessage::createMethodCall(QStringLiteral("org.a11y.atspi.Registry"),
                                       QStringLiteral("/org/a11y/atspi/registry"),
                                       QStringLiteral("org.a11y.atspi.Registry"),
                                       QStringLiteral("GetRegisteredEvents"));
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, text] {
        answer->deleteLater();
        const QStringList registered = registeredEvents(answer->reply());
        if (!isHeard(registered, QStringLiteral("object:announcement")) &&
            isHeard(registered, QStringLiteral("object:state-changed:showing"))) {
            m_unheard.append(text);
            m_gather.start();
        }
    });
}

// It is spoken when it starts to show: another one shows anew.
void Announcer::setNotice(const QString& text) {
    setVisible(false);
    m_notice = text;
    Q_EMIT noticeChanged();
    if (!text.isEmpty()) {
        setVisible(true);
        m_end.start();
    }
}

} // namespace vasker
