#pragma once
// The work of one raster tile: reads its data and paints it. Owns all that it uses; any thread.

#include "map/basemap/RasterTile.h"
#include "map/basemap/TileProvider.h"
#include "map/labels/MapLanguage.h"
#include "map/style/TileOverlay.h"
#include "map/style/TileRequest.h"

#include <memory>
#include <stop_token>
#include <vector>

namespace vasker {

struct TileJob {
    TileRequest request;
    MapLanguage language = MapLanguage::english;
    std::shared_ptr<TileProvider> provider;
    std::shared_ptr<const TileOverlay> overlay; ///< null: none
    RasterTile bare; ///< with a basemap, that need not be painted anew; else it is

    struct Result {
        RasterTile tile; ///< without a number
        std::vector<ServiceTile> undecodable;
    };
    /// The tile that was asked for; without an image where `stop` asks to end.
    [[nodiscard]] Result run(const std::stop_token& stop) &&;
};

} // namespace vasker
