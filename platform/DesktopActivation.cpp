#include "platform/DesktopActivation.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>

#include <utility>

namespace vasker {

namespace {

const QString applicationInterface = QStringLiteral("org.freedesktop.Application");
const QString activationKey = QStringLiteral("activation-token");
const QString startupKey = QStringLiteral("desktop-startup-id");

// The first may end while it is asked; then the name is free, or another's.
constexpr int attempts = 3;

QString pathOf(const QString& name) {
    QString path = u'/' + name;
    return path.replace(u'.', u'/').replace(u'-', u'_');
}

QVariantMap platformData(const LaunchToken& token) {
    QVariantMap data;
    if (!token.activation.isEmpty()) {
        data.insert(activationKey, token.activation);
    }
    if (!token.startup.isEmpty()) {
        data.insert(startupKey, token.startup);
    }
    return data;
}

LaunchToken tokenIn(const QVariantMap& data) {
    return {.activation = data.value(activationKey).toString(),
            .startup = data.value(startupKey).toString()};
}

} // namespace

LaunchToken LaunchToken::fromEnvironment() {
    return {.activation = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"),
            .startup = qEnvironmentVariable("DESKTOP_STARTUP_ID")};
}

DesktopActivation::DesktopActivation(const QDBusConnection& bus,
                                     const QString& name,
                                     QObject* parent)
    : QObject(parent), m_bus(bus), m_name(name), m_path(pathOf(name)) {
    new ApplicationInterface(this);
}

DesktopActivation::~DesktopActivation() {
    withdraw();
}

DesktopActivation::Outcome DesktopActivation::start(const LaunchToken& token,
                                                    std::chrono::milliseconds patience) {
    const QDeadlineTimer deadline(patience);
    for (int attempt = 0; attempt < attempts && m_bus.isConnected(); ++attempt) {
        if (claim()) {
            return Outcome::first;
        }
        if (deadline.hasExpired()) {
            break;
        }
        if (ask(token, std::chrono::milliseconds(deadline.remainingTime()))) {
            return Outcome::handedOver;
        }
    }
    return Outcome::alone;
}

bool DesktopActivation::claim() {
    if (m_claimed || !m_bus.isConnected()) {
        return m_claimed;
    }
    // The object first: who finds the name finds it as well.
    m_claimed = m_bus.registerObject(m_path, this) && m_bus.registerService(m_name);
    if (!m_claimed) {
        m_bus.unregisterObject(m_path);
    }
    return m_claimed;
}

void DesktopActivation::withdraw() {
    if (std::exchange(m_claimed, false)) {
        m_bus.unregisterService(m_name);
        m_bus.unregisterObject(m_path);
    }
}

bool DesktopActivation::ask(const LaunchToken& token, std::chrono::milliseconds patience) {
    QDBusMessage request = QDBusMessage::createMethodCall(
        m_name, m_path, applicationInterface, QStringLiteral("Activate"));
    request << platformData(token);
    // Someone there has to take it: without the name nobody is started in our place.
    request.setAutoStartService(false);
    const QDBusMessage answer =
        m_bus.call(request, QDBus::Block, static_cast<int>(patience.count()));
    return answer.type() == QDBusMessage::ReplyMessage;
}

ApplicationInterface::ApplicationInterface(DesktopActivation* activation)
    : QDBusAbstractAdaptor(activation), m_activation(activation) {}

void ApplicationInterface::Activate(const QVariantMap& platformData) {
    Q_EMIT m_activation->windowRequested(tokenIn(platformData));
}

void ApplicationInterface::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void ApplicationInterface::ActivateAction(const QString&,
                                          const QVariantList&,
                                          const QVariantMap& platformData) {
    Activate(platformData);
}

} // namespace vasker
