#pragma once
// Makes the frames of one map: state and camera in, ordered layers out. Keeps what lasts from one
// frame to the next: raster tiles, the atlas and the places of labels. User-interface thread.

#include "map/basemap/TilePyramid.h"
#include "map/frame/MapFrame.h"
#include "map/frame/MapState.h"
#include "map/labels/MapLabels.h"
#include "map/labels/MapLanguage.h"
#include "map/records/MapRecords.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace vasker {

class MapComposer : public QObject {
    Q_OBJECT

  public:
    /// Labels are shown in `language`.
    explicit MapComposer(MapLanguage language);

    /// The library that tiles come from; it outlives the composer. Null: there are no tiles.
    void setTiles(TileLibrary* library);
    [[nodiscard]] TileLibrary* tiles() const noexcept { return m_tiles; }
    /// Shows other records. Workers begin to paint them, as `camera` will see them, before the next
    /// frame is composed.
    void setRecords(const RecordSet& records, const MapState& state, const Camera& camera);
    [[nodiscard]] MapRecords& records() noexcept { return m_records; }
    [[nodiscard]] const MapRecords& records() const noexcept { return m_records; }

    /// The frame that `camera` sees at `now`, any steady time.
    [[nodiscard]] MapFrame
    compose(const MapState& state, const Camera& camera, std::chrono::nanoseconds now);

    /// Labels and pins of the last frame, in drawing order, for those who do not draw its sprites.
    [[nodiscard]] std::vector<Shape> shapes();

    /// The scene graph has lost its textures.
    void handOverAgain();

  Q_SIGNALS:
    /// There is more to be shown.
    void changed();

  private:
    [[nodiscard]] BasemapView basemapView(const MapState& state, const Camera& camera);
    [[nodiscard]] std::vector<RecordLabel> recordLabels(const RecordFrame& records,
                                                        const MapState& state) const;

    MapLanguage m_language;
    TileLibrary* m_tiles = nullptr;
    std::unique_ptr<TilePyramid> m_pyramid; ///< null without m_tiles
    MapRecords m_records;
    MapLabels m_labels;
    bool m_hasComposed = false;
};

} // namespace vasker
