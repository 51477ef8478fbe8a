#include "platform/Appearance.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJSEngine>
#include <QMap>
#include <QPalette>
#include <QQmlEngine>

#include <algorithm>

namespace vasker {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

const QString desktopGroup = QStringLiteral("org.freedesktop.appearance");
const QString gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeContrastGroup = QStringLiteral("org.gnome.desktop.a11y.interface");

using SettingsByGroup = QMap<QString, QVariantMap>;

ColorScheme systemScheme() {
    const QPalette palette = QGuiApplication::palette();
    const bool lightText = palette.color(QPalette::WindowText).lightness() >
                           palette.color(QPalette::Window).lightness();
    return lightText ? ColorScheme::dark : ColorScheme::light;
}

// The portal's numbers: 1 asks for dark, 2 for light, anything else for nothing in particular.
ColorScheme portalScheme(uint number) {
    switch (number) {
    case 1:
        return ColorScheme::dark;
    case 2:
        return ColorScheme::light;
    default:
        return systemScheme();
    }
}

} // namespace

Appearance::Appearance(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_bus(bus), m_scheme(systemScheme()) {
    if (m_bus.isConnected()) {
        m_bus.connect(service,
                      path,
                      interface,
                      QStringLiteral("SettingChanged"),
                      this,
                      SLOT(apply(QString, QString, QDBusVariant)));
        askPortal();
    }
}

QDBusConnection Appearance::sessionBus() {
    const QString userBus = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") || QFileInfo::exists(userBus)) {
        return QDBusConnection::sessionBus();
    }
    return QDBusConnection(QStringLiteral("no session bus"));
}

Appearance* Appearance::create(QQmlEngine*, QJSEngine*) {
    static auto* const shared = new Appearance(sessionBus(), qGuiApp);
    QJSEngine::setObjectOwnership(shared, QJSEngine::CppOwnership);
    return shared;
}

void Appearance::askPortal() {
    qDBusRegisterMetaType<SettingsByGroup>();
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    question << QStringList{desktopGroup, gnomeGroup, gnomeContrastGroup};
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<SettingsByGroup> reply = *watcher;
        if (reply.isError()) {
            return;
        }
        const SettingsByGroup settings = reply.value();
        for (auto group = settings.cbegin(); group != settings.cend(); ++group) {
            for (auto each = group->cbegin(); each != group->cend(); ++each) {
                apply(group.key(), each.key(), QDBusVariant(each.value()));
            }
        }
    });
}

void Appearance::apply(const QString& group, const QString& key, const QDBusVariant& wrapped) {
    const QVariant value = wrapped.variant();
    if (group == desktopGroup && key == u"color-scheme") {
        m_scheme = portalScheme(value.toUInt());
    } else if (group == desktopGroup && key == u"contrast") {
        m_highContrast = value.toUInt() == 1;
    } else if (group == gnomeContrastGroup && key == u"high-contrast") {
        m_highContrast = value.toBool();
    } else if (group == desktopGroup && key == u"reduced-motion") {
        m_reducedMotion = value.toUInt() == 1;
    } else if (group == gnomeGroup && key == u"enable-animations") {
        m_reducedMotion = !value.toBool();
    } else if (group == gnomeGroup && key == u"text-scaling-factor") {
        m_textScale = std::clamp(value.toDouble(), 1.0, 2.0);
    } else {
        return;
    }
    Q_EMIT changed();
}

} // namespace vasker
