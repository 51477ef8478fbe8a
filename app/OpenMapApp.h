#pragma once
// The application: a group of windows that share the user's settings and nothing else.

#include "app/BackgroundThreads.h"
#include "data/Text.h"
#include "map/basemap/TileLibrary.h"
#include "platform/Bundle.h"
#include "platform/Preferences.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQmlIntegration>

namespace vasker {

class OpenMapApp : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("There is one, made at the start")
    /// The TileLibrary of all maps.
    Q_PROPERTY(QObject* tiles READ tiles CONSTANT)

  public:
    /// Tiles of services are kept below `cachePath`.
    OpenMapApp(Bundle bundle,
               TextLocale locale,
               const QString& preferencesPath,
               const QString& cachePath);
    ~OpenMapApp() override;

    [[nodiscard]] QObject* tiles() noexcept { return &m_tiles; }

    /// "vasker-open-map" in the user's XDG cache folder.
    [[nodiscard]] static QString userCachePath();

    /// Opens one more window, which loads the release by itself and goes when it is closed.
    Q_INVOKABLE QQuickWindow* openWindow();

  private:
    Bundle m_bundle;
    TextLocale m_locale;
    Preferences m_preferences;
    // Before the engine, so that it ends after the windows that use it.
    BackgroundThreads m_threads;
    TileLibrary m_tiles;
    QQmlEngine m_engine;
    QQmlComponent m_component;
    QList<QPointer<QQuickWindow>> m_windows;
};

} // namespace vasker
