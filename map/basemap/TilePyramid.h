#pragma once
// Which raster tiles one map shows: which are needed now, in which order they are painted, what
// stands in for those that are not ready, and how many are kept.
//
// Tiles come in generations. While the map moves, the current generation is stretched a little;
// where that would be too much, where theme or records change, or where the map comes to rest at
// another scale, a pending generation is begun. It becomes the current one when it covers the view.
// Below both lies a coarse generation of the whole world, so that there is never a hole.
// User-interface thread.

#include "map/basemap/BasemapFrame.h"
#include "map/basemap/TileGeneration.h"
#include "map/basemap/TileLibrary.h"
#include "map/geometry/TileCover.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vasker {

class TilePyramid : public QObject {
    Q_OBJECT

  public:
    /// `library` outlives the pyramid.
    explicit TilePyramid(TileLibrary& library, QObject* parent = nullptr);
    ~TilePyramid() override;

    /// The basemap as `view` shows it at `now`, any steady time.
    [[nodiscard]] BasemapFrame compose(const BasemapView& view, std::chrono::nanoseconds now);
    /// Asks the workers for what `view` will need, before it is composed.
    void prepare(const BasemapView& view);

    /// Textures are lost: the images that were handed over are needed again.
    void handOverAgain();

  Q_SIGNALS:
    /// Something new is there: compose() again.
    void changed();

  private:
    using GenerationPointer = std::shared_ptr<TileGeneration>;
    struct Fade {
        GenerationPointer old;
        std::optional<std::chrono::nanoseconds> since; ///< none: begins with the next frame
    };

    [[nodiscard]] bool suits(const TileGeneration& generation) const;
    void begin();
    [[nodiscard]] const std::vector<CoverTile>& cover(const TileGeneration& generation,
                                                      double margin);
    [[nodiscard]] bool covers(const TileGeneration& generation);
    [[nodiscard]] bool lacksOnlyOverlay(const TileGeneration& generation);
    [[nodiscard]] bool isReadyToShow(const TileGeneration& generation);
    void promote();
    void request();
    void collect(const GenerationPointer& generation,
                 double margin,
                 std::vector<TileWorkers::Job>& jobs);
    [[nodiscard]] TileWorkers::Job
    job(const GenerationPointer& generation, TileKey key, std::shared_ptr<std::atomic<bool>> begun);
    void takePainted(TileGeneration& generation,
                     const std::shared_ptr<std::atomic<bool>>& begun,
                     RasterTile tile);
    void markOutdated(const ServiceTile& tile);
    [[nodiscard]] BasemapFrame show(std::chrono::nanoseconds now);
    [[nodiscard]] std::vector<TileGeneration*> generations() const;

    TileLibrary& m_library;
    BasemapView m_view;
    GenerationPointer m_current; ///< in view; null before the first is ready
    GenerationPointer m_pending; ///< being painted, to become current; may be null
    GenerationPointer m_world;   ///< the coarse one below
    std::optional<Fade> m_fade;
    bool m_hasJobs = false; ///< the workers may have jobs of ours that were not begun
    std::map<std::pair<int, double>, std::vector<CoverTile>> m_covers; ///< of m_view
    TileNumber m_lastTile = 0;
    QTimer m_news; ///< runs while there are tiles that no frame shows
};

} // namespace vasker
