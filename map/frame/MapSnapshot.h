#pragma once
// Takes one frame of a map apart from the screen, at a density of its own, once all its tiles are
// there.

#include "map/frame/MapComposer.h"
#include "map/frame/MapDrawing.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

namespace vasker {

/// What is to be seen.
struct MapScene {
    RecordSet records;
    QString selection; ///< an id; empty: none
    MapLanguage language = MapLanguage::english;
    MapState state; ///< `devicePixels` is the density of the raster tiles
    Camera camera{canadaOverview, {1, 1}};
    TileLibrary* tiles = nullptr; ///< outlives the snapshot; null: there are no tiles
};

class MapSnapshot : public QObject {
    Q_OBJECT

  public:
    using Use = std::function<void(std::shared_ptr<const MapDrawing> drawing)>;

    /// Calls `use` once, later; never when `owner` is gone by then. What a service has not sent
    /// after some seconds is missing in the drawing.
    static void take(const MapScene& scene, QObject* owner, Use use);

  private:
    MapSnapshot(const MapScene& scene, QObject* owner, Use use);
    void compose();
    void finish(MapFrame frame);

    MapScene m_scene;
    MapComposer m_composer;
    MapDrawing m_drawing;
    Use m_use;
    QTimer m_next;     ///< composes anew
    QTimer m_patience; ///< runs while tiles are waited for
};

} // namespace vasker
