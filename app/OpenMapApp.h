#pragma once
// The application: a group of windows that share the user's settings and nothing else.

#include "app/MemoryReturn.h"
#include "app/sheets/GuideSection.h"
#include "data/text/TextLocale.h"
#include "map/basemap/TileLibrary.h"
#include "platform/Bundle.h"
#include "platform/DesktopActivation.h"
#include "platform/files/Preferences.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QVariantList>
#include <QtQmlIntegration>

#include <vector>

namespace vasker {

class OpenMapApp : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("There is one, made at the start")
    /// The TileLibrary of all maps.
    Q_PROPERTY(QObject* tiles READ tiles CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    /// Values of GuideSection.
    Q_PROPERTY(QVariantList guide READ guide CONSTANT)

  public:
    /// What the program asks of Qt and of the allocator. Call it first of all: before threads are
    /// made and before QGuiApplication.
    static void setUpProcess();

    /// Tiles of services are kept below `cachePath`.
    OpenMapApp(Bundle bundle,
               TextLocale locale,
               const QString& preferencesPath,
               const QString& cachePath);
    ~OpenMapApp() override;

    [[nodiscard]] QObject* tiles() noexcept { return &m_tiles; }

    /// The program's own, as in "1.2.3".
    [[nodiscard]] static QString version();

    /// The user guide in the language of the application's texts, read anew.
    [[nodiscard]] static std::vector<GuideSection> guideSections();
    [[nodiscard]] static QVariantList guide();

    /// "vasker-open-map" in the user's XDG cache folder.
    [[nodiscard]] static QString userCachePath();

    /// Opens one more window, which loads the release by itself and goes when it is closed. Null
    /// where there are windows and the system lets the program open too few files for another one.
    Q_INVOKABLE QQuickWindow* openWindow();
    /// The same; once it is seen, the window asks to come to the front, for which `token` is the
    /// permission.
    void openWindowInFront(const LaunchToken& token);
    [[nodiscard]] bool hasWindows() const;
    /// Which ends the program, as the closing of the last window does.
    Q_INVOKABLE void closeAllWindows();

  private:
    Bundle m_bundle;
    TextLocale m_locale;
    Preferences m_preferences;
    TileLibrary m_tiles;
    QQmlEngine m_engine;
    QQmlComponent m_component;
    MemoryReturn m_memory;
    QList<QPointer<QQuickWindow>> m_windows;
};

} // namespace vasker
