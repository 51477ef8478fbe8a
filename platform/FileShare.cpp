#include "platform/FileShare.h"

#include "platform/Appearance.h"
#include "platform/Background.h"
#include "platform/FileCopy.h"
#include "platform/Portal.h"

#include <QClipboard>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJSEngine>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QStandardPaths>

#include <memory>
#include <system_error>

namespace vasker {

namespace {

const QString fileChooser = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString openURI = QStringLiteral("org.freedesktop.portal.OpenURI");

// The file itself, as the portal wants it: it need not find it by name. Not valid where it cannot
// be opened.
QDBusUnixFileDescriptor opened(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QDBusUnixFileDescriptor(file.handle())
                                          : QDBusUnixFileDescriptor();
}

} // namespace

FileShare::FileShare(const QDBusConnection& bus, QQmlEngine* engine, QObject* parent)
    : QObject(parent), m_bus(bus), m_engine(engine) {}

FileShare* FileShare::create(QQmlEngine* engine, QJSEngine*) {
    static auto* const shared = new FileShare(Appearance::sessionBus(), engine, qGuiApp);
    QJSEngine::setObjectOwnership(shared, QJSEngine::CppOwnership);
    return shared;
}

void FileShare::saveCopy(const QString& path, QQuickWindow* window) {
    setMessage({});
    const PortalCall call{.interface = fileChooser,
                          .method = QStringLiteral("SaveFile"),
                          .arguments = {PortalRequest::parentName(window), tr("Save a copy")},
                          .options = {{QStringLiteral("current_name"), QFileInfo(path).fileName()},
                                      {QStringLiteral("modal"), true}}};
    const QPointer<QQuickWindow> above(window);
    PortalRequest::send(
        m_bus,
        call,
        this,
        [this, path, above](PortalRequest::Outcome outcome, const QVariantMap& results) {
            if (outcome == PortalRequest::Outcome::unavailable) {
                askByDialog(path, above);
            } else if (outcome == PortalRequest::Outcome::done) {
                const QStringList chosen = results.value(QStringLiteral("uris")).toStringList();
                copyTo(path, QUrl(chosen.value(0)));
            }
        });
}

void FileShare::askByDialog(const QString& path, QQuickWindow* window) {
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QDir folder = documents.exists() ? documents : QDir::home();
    const QString place = folder.filePath(QFileInfo(path).fileName());
    std::unique_ptr<QObject> dialog;
    if (m_engine != nullptr) {
        QQmlComponent component(m_engine,
                                QUrl(QStringLiteral("qrc:/qt/qml/Vasker/Platform/SaveDialog.qml")));
        dialog.reset(component.createWithInitialProperties(
            {{QStringLiteral("path"), path},
             {QStringLiteral("place"), QUrl::fromLocalFile(place)},
             {QStringLiteral("parentWindow"), QVariant::fromValue(window)}}));
    }
    if (dialog == nullptr || !dialog->property("visible").toBool()) {
        setMessage(tr("The copy could not be saved: this desktop has no dialog to ask where."));
        return;
    }
    // By name: the dialog's type is not public.
    connect(dialog.get(), SIGNAL(finished()), dialog.get(), SLOT(deleteLater()));
    dialog.release()->setParent(this);
}

bool FileShare::exists(const QUrl& place) const {
    return place.isLocalFile() && QFileInfo::exists(place.toLocalFile());
}

void FileShare::copyTo(const QString& path, const QUrl& place) {
    setMessage({});
    if (!place.isLocalFile()) {
        setMessage(tr("The copy could not be saved: that place is not on this computer."));
        return;
    }
    const QString target = place.toLocalFile();
    const auto tellOf = [this, target](const QString& fault) {
        setMessage(fault.isEmpty() ? tr("Saved to %1").arg(target)
                                   : tr("The copy could not be saved: %1").arg(fault));
    };
    try {
        runInBackground(
            this,
            [path, target](const std::stop_token&) { return copyWhole(path, target); },
            tellOf,
            AtExit::finish);
    } catch (const std::system_error& error) {
        tellOf(QString::fromStdString(error.code().message()));
    }
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
        if (!QDesktopServices::openUrl(folder)) {
            setMessage(tr("The folder could not be opened: %1").arg(folder.toLocalFile()));
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
                !QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
                setMessage(tr("The file could not be opened: %1").arg(path));
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
