#include "platform/files/FileShare.h"

#include "platform/Appearance.h"
#include "platform/Launcher.h"
#include "platform/Portal.h"
#include "platform/files/FileCopy.h"

#include <QClipboard>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJSEngine>
#include <QMimeData>

#include <memory>

namespace vasker {

namespace {

const QString openURI = QStringLiteral("org.freedesktop.portal.OpenURI");

// The file itself, as the portal wants it: it need not find it by name. Not valid where it cannot
// be opened.
QDBusUnixFileDescriptor opened(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QDBusUnixFileDescriptor(file.handle())
                                          : QDBusUnixFileDescriptor();
}

} // namespace

FileShare::FileShare(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_bus(bus), m_saving(bus) {
    connect(&m_saving, &FileSaving::ended, this, [this](bool, const QString& message) {
        setMessage(message);
    });
}

FileShare* FileShare::create(QQmlEngine*, QJSEngine*) {
    static auto* const shared = new FileShare(Appearance::sessionBus(), qGuiApp);
    QJSEngine::setObjectOwnership(shared, QJSEngine::CppOwnership);
    return shared;
}

void FileShare::saveCopy(const QString& path, QQuickWindow* window) {
    setMessage({});
    m_saving.save(tr("Save a copy"),
                  QFileInfo(path).fileName(),
                  window,
                  [path](const QString& target) { return copyWhole(path, target); });
}

void FileShare::showInFolder(const QString& path) {
    setMessage({});
    if (!m_bus.isConnected()) {
        return openFolder(path);
    }
    QDBusMessage question =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                       QStringLiteral("/org/freedesktop/FileManager1"),
                                       QStringLiteral("org.freedesktop.FileManager1"),
                                       QStringLiteral("ShowItems"));
    question << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, path] {
        watcher->deleteLater();
        if (QDBusPendingReply<>(*watcher).isError()) {
            openFolder(path);
        }
    });
}

void FileShare::openFolder(const QString& path) {
    const auto openByName = [this, path] {
        const QUrl folder = QUrl::fromLocalFile(QFileInfo(path).absolutePath());
        if (!launch(folder)) {
            setMessage(
                tr("No program was found that opens the folder: %1").arg(folder.toLocalFile()));
        }
    };
    const QDBusUnixFileDescriptor file = opened(path);
    if (!file.isValid()) {
        return openByName();
    }
    const PortalCall call{.interface = openURI,
                          .method = QStringLiteral("OpenDirectory"),
                          .arguments = {PortalRequest::parentName(QGuiApplication::focusWindow()),
                                        QVariant::fromValue(file)},
                          .options = {}};
    PortalRequest::send(
        m_bus, call, this, [openByName](PortalRequest::Outcome outcome, const QVariantMap&) {
            if (outcome == PortalRequest::Outcome::unavailable) {
                openByName();
            }
        });
}

void FileShare::copyFile(const QString& path) {
    const QUrl url = QUrl::fromLocalFile(path);
    auto content = std::make_unique<QMimeData>();
    content->setUrls({url});
    content->setText(path);
    // File managers ask whether to copy or to cut: GNOME's and its kin, then KDE's.
    content->setData(QStringLiteral("x-special/gnome-copied-files"),
                     QByteArrayLiteral("copy\n") + url.toEncoded());
    content->setData(QStringLiteral("application/x-kde-cutselection"), QByteArrayLiteral("0"));
    QGuiApplication::clipboard()->setMimeData(content.release());
    setMessage(tr("The file is on the clipboard."));
}

void FileShare::openWith(const QString& path, QQuickWindow* window) {
    setMessage({});
    const QDBusUnixFileDescriptor file = opened(path);
    if (!file.isValid()) {
        setMessage(tr("The file could not be opened: %1").arg(path));
        return;
    }
    const PortalCall call{
        .interface = openURI,
        .method = QStringLiteral("OpenFile"),
        .arguments = {PortalRequest::parentName(window), QVariant::fromValue(file)},
        .options = {{QStringLiteral("ask"), true}, {QStringLiteral("writable"), false}}};
    PortalRequest::send(
        m_bus, call, this, [this, path](PortalRequest::Outcome outcome, const QVariantMap&) {
            if (outcome == PortalRequest::Outcome::unavailable &&
                !launch(QUrl::fromLocalFile(path))) {
                setMessage(tr("No program was found that opens the file: %1").arg(path));
            }
        });
}

void FileShare::setMessage(const QString& message) {
    if (m_message != message) {
        m_message = message;
        Q_EMIT messageChanged();
    }
}

} // namespace vasker
