#include "platform/Appearance.h"

#include "platform/Portal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QEvent>
#include <QFileInfo>
#include <QFontInfo>
#include <QGuiApplication>
#include <QJSEngine>
#include <QMap>
#include <QPalette>
#include <QQmlEngine>
#include <QStyleHints>

#include <algorithm>

namespace vasker {

namespace {

const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

const QString desktopGroup = QStringLiteral("org.freedesktop.appearance");
const QString gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeContrastGroup = QStringLiteral("org.gnome.desktop.a11y.interface");

using SettingsByGroup = QMap<QString, QVariantMap>;

ColorScheme systemScheme() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown) {
        return scheme == Qt::ColorScheme::Dark ? ColorScheme::dark : ColorScheme::light;
    }
#endif
    const QPalette palette = QGuiApplication::palette();
    const bool lightText = palette.color(QPalette::WindowText).lightness() >
                           palette.color(QPalette::Window).lightness();
    return lightText ? ColorScheme::dark : ColorScheme::light;
}

// The portal's numbers: 1 asks for dark, 2 for light, anything else for nothing in particular.
std::optional<ColorScheme> portalScheme(uint number) {
    switch (number) {
    case 1:
        return ColorScheme::dark;
    case 2:
        return ColorScheme::light;
    default:
        return std::nullopt;
    }
}

/// In pixels: 11 points at 96 dots per inch, the largest of the usual sizes of desktops. A system
/// font that is larger was chosen to be.
constexpr double usualFontSize = 11 * 96.0 / 72.0;

constexpr double mostTextScale = 2;

} // namespace

Appearance::Appearance(const QDBusConnection& bus, QObject* parent) : QObject(parent), m_bus(bus) {
    qGuiApp->installEventFilter(this);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(),
            &QStyleHints::colorSchemeChanged,
            this,
            &Appearance::changed);
#endif
    if (!m_bus.isConnected()) {
        return;
    }
    qRegisterMetaType<QDBusVariant>(); // the slot below is not connected without it
    if (!m_bus.connect(portalService,
                       portalPath,
                       settingsInterface,
                       QStringLiteral("SettingChanged"),
                       this,
                       SLOT(apply(QString, QString, QDBusVariant)))) {
        qWarning("The desktop's settings cannot be followed.");
    }
    const auto* const watcher = new QDBusServiceWatcher(
        portalService, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &Appearance::askPortal);
    askPortal();
}

ColorScheme Appearance::scheme() const {
    return m_scheme.value_or(systemScheme());
}

double Appearance::textScale() const {
    const double ofFont = QFontInfo(QGuiApplication::font()).pixelSize() / usualFontSize;
    return std::clamp(std::max(ofFont, m_gnomeTextScale), 1.0, mostTextScale);
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && (event->type() == QEvent::ApplicationPaletteChange ||
                               event->type() == QEvent::ApplicationFontChange)) {
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
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
    QDBusMessage question = QDBusMessage::createMethodCall(
        portalService, portalPath, settingsInterface, QStringLiteral("ReadAll"));
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
        m_desktop.highContrast = value.toUInt() == 1;
    } else if (group == gnomeContrastGroup && key == u"high-contrast") {
        m_gnome.highContrast = value.toBool();
    } else if (group == desktopGroup && key == u"reduced-motion") {
        m_desktop.reducedMotion = value.toUInt() == 1;
    } else if (group == gnomeGroup && key == u"enable-animations") {
        m_gnome.reducedMotion = !value.toBool();
    } else if (group == gnomeGroup && key == u"text-scaling-factor") {
        m_gnomeTextScale = value.toDouble();
    } else {
        return;
    }
    Q_EMIT changed();
}

} // namespace vasker
