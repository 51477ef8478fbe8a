#include "platform/SystemBrowser.h"

#include "platform/Appearance.h"
#include "platform/Launcher.h"
#include "platform/Portal.h"

#include <QGuiApplication>
#include <QJSEngine>
#include <QUrl>

namespace vasker {

SystemBrowser::SystemBrowser(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_bus(bus) {}

SystemBrowser* SystemBrowser::create(QQmlEngine*, QJSEngine*) {
    static auto* const shared = new SystemBrowser(Appearance::sessionBus(), qGuiApp);
    QJSEngine::setObjectOwnership(shared, QJSEngine::CppOwnership);
    return shared;
}

bool SystemBrowser::open(const QString& address) {
    const QUrl url(address, QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != u"https" || url.host().isEmpty()) {
        return false;
    }
    const PortalCall call{.interface = QStringLiteral("org.freedesktop.portal.OpenURI"),
                          .method = QStringLiteral("OpenURI"),
                          .arguments = {PortalRequest::parentName(QGuiApplication::focusWindow()),
                                        url.toString(QUrl::FullyEncoded)},
                          .options = {}};
    PortalRequest::send(m_bus,
                        call,
                        this,
                        [this, address, url](PortalRequest::Outcome outcome, const QVariantMap&) {
                            const bool isOpened =
                                outcome != PortalRequest::Outcome::unavailable || launch(url);
                            setUnopened(isOpened ? QString() : address);
                        });
    return true;
}

QString SystemBrowser::message() const {
    return m_unopened.isEmpty() ? QString()
                                : tr("No browser was found that opens %1").arg(m_unopened);
}

void SystemBrowser::setUnopened(const QString& address) {
    if (m_unopened != address) {
        m_unopened = address;
        Q_EMIT unopenedChanged();
    }
}

} // namespace vasker
