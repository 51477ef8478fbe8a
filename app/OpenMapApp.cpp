#include "app/OpenMapApp.h"

#include "app/OpenMapRoot.h"
#include "map/scene/Graphics.h"
#include "platform/Descriptors.h"
#include "platform/Memory.h"
#include "platform/ValueList.h"

#include <QFile>
#include <QJsonObject>
#include <QQuickWindow>
#include <QStandardPaths>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace vasker {

namespace {

/// More than one more window takes, with what it asks of the disk and the bus. Where they run out
/// while it is made, the libraries below it end the program.
constexpr int descriptorsForWindow = 48;

/// Where the bundle has no such archive, the path is empty: the map does without.
std::string archivePath(const Bundle& bundle, const QString& name) {
    const auto path = bundle.resource(name, QStringLiteral("mbtiles"));
    return path ? QFile::encodeName(*path).toStdString() : std::string();
}

TileService::Options serviceOptions(const QString& cachePath) {
    TileService::Options options;
    options.cacheFolder = cachePath + QStringLiteral("/tiles");
    options.userAgent = QStringLiteral("VaskerBeta/" VASKER_VERSION);
    return options;
}

} // namespace

void OpenMapApp::setUpProcess() {
    returnFreedImages();
    returnThreadsMemory();
    // Qt asks once, when it starts, whether there is a screen reader: one may be started later.
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    // Code that Qt 6.4 compiles at run time leaves a bare 1 on the engine's stack, which its
    // collector takes for an object: that ended the program.
    qputenv("QV4_FORCE_INTERPRETER", "1");
    shortenFrameDelay();
}

OpenMapApp::OpenMapApp(Bundle bundle,
                       TextLocale locale,
                       const QString& preferencesPath,
                       const QString& cachePath)
    : m_bundle(std::move(bundle)), m_locale(std::move(locale)), m_preferences(preferencesPath),
      m_tiles({.vector = archivePath(m_bundle, QStringLiteral("basemap")),
               .imagery = archivePath(m_bundle, QStringLiteral("imagery"))},
              TileSources::fromInformation(
                  m_bundle.information(QStringLiteral("VaskerTileServices")).toObject()),
              serviceOptions(cachePath)),
      m_component(&m_engine), m_memory(m_engine) {
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

QString OpenMapApp::userCachePath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/vasker-open-map");
}

OpenMapApp::~OpenMapApp() {
    for (const QPointer<QQuickWindow>& window : m_windows) {
        delete window;
    }
}

QString OpenMapApp::version() {
    return QStringLiteral(VASKER_VERSION);
}

std::vector<GuideSection> OpenMapApp::guideSections() {
    //: The file of the guide in this language, from the folder docs/guide
    QFile file(tr(":/guide/en.md"));
    return file.open(QIODevice::ReadOnly) ? GuideSection::allOf(QString::fromUtf8(file.readAll()))
                                          : std::vector<GuideSection>();
}

QVariantList OpenMapApp::guide() {
    return valueList(guideSections());
}

QQuickWindow* OpenMapApp::openWindow() {
    if (hasWindows() && !canOpenDescriptors(descriptorsForWindow)) {
        return nullptr;
    }
    // Loading starts first: it goes on while the window is being made.
    auto root = std::make_unique<OpenMapRoot>(m_bundle, m_locale, m_preferences);
    root->load();
    if (m_component.isNull()) {
        m_component.loadUrl(QUrl(QStringLiteral("qrc:/qt/qml/Vasker/App/Main.qml")));
    }
    if (m_component.isError()) {
        qFatal("%s", qPrintable(m_component.errorString()));
    }
    auto* window = qobject_cast<QQuickWindow*>(m_component.createWithInitialProperties(
        {{QStringLiteral("root"), QVariant::fromValue(root.get())},
         {QStringLiteral("application"), QVariant::fromValue(this)}}));
    Q_ASSERT(window != nullptr);
    // Items go before the root that they are bound to: a window's children are the last it loses.
    root.release()->setParent(window);
    QQmlEngine::setObjectOwnership(window, QQmlEngine::CppOwnership);
    // By name: the event's type is not public.
    connect(window, SIGNAL(closing(QQuickCloseEvent*)), window, SLOT(deleteLater()));
    connect(window, &QQuickWindow::sceneGraphError, this, [](auto /*error*/, const QString& text) {
        qCritical("The window cannot be drawn: %s", qUtf8Printable(text));
        QCoreApplication::exit(EXIT_FAILURE);
    });
    // What hung on the window goes with it, or just after.
    connect(window, &QObject::destroyed, &m_memory, &MemoryReturn::giveBack, Qt::QueuedConnection);
    m_windows.removeIf([](const QPointer<QQuickWindow>& each) { return each.isNull(); });
    m_windows.append(window);
    return window;
}

void OpenMapApp::openWindowInFront(const LaunchToken& token) {
    QQuickWindow* const window = openWindow();
    if (window == nullptr) {
        return;
    }
    const auto request = [window, token] {
        if (!token.activation.isEmpty()) {
            // Where Qt looks for it.
            qputenv("XDG_ACTIVATION_TOKEN", token.activation.toUtf8());
        }
        window->requestActivate();
    };
    connect(window, &QQuickWindow::frameSwapped, window, request, Qt::SingleShotConnection);
}

bool OpenMapApp::hasWindows() const {
    return std::any_of(
        m_windows.cbegin(), m_windows.cend(), [](const auto& window) { return window != nullptr; });
}

void OpenMapApp::closeAllWindows() {
    const QList<QPointer<QQuickWindow>> windows = m_windows;
    for (const QPointer<QQuickWindow>& window : windows) {
        if (window != nullptr) {
            window->close();
        }
    }
}

} // namespace vasker
