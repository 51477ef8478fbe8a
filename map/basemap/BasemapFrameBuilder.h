#pragma once
// Puts raster tiles into the basemap of a frame, the lowest first.

#include "map/basemap/BasemapFrame.h"
#include "map/basemap/BasemapView.h"
#include "map/basemap/TileGeneration.h"

#include <vector>

namespace vasker {

class BasemapFrameBuilder {
  public:
    /// `view` outlives the builder.
    explicit BasemapFrameBuilder(const BasemapView& view);

    /// What is there of `generation` and seen; nearer tiles lie over farther ones of the same
    /// place.
    void show(TileGeneration& generation, double opacity);
    /// Exactly the tiles of `cover`, all of which are there: what is left of other views may be
    /// coarser, or older.
    void showCover(TileGeneration& generation, const std::vector<CoverTile>& cover, double opacity);
    /// Hands images over before they are seen, a few a frame.
    void prepare(TileGeneration& generation);
    /// The labels of the tiles shown last, and what else is said of them.
    void describe(const TileGeneration& generation);
    /// The textures of the generation's tiles are still needed.
    void keep(const TileGeneration& generation);

    [[nodiscard]] BasemapFrame take();

  private:
    void add(RasterTile& tile, double offset, double opacity);

    const BasemapView& m_view;
    std::vector<double> m_offsets; ///< of the copies of the world that are seen
    std::vector<const RasterTile*> m_last;
    BasemapFrame m_frame;
};

} // namespace vasker
