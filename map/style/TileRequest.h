#pragma once
// A raster tile to be painted.

#include "map/style/BasemapTheme.h"
#include "map/style/PixelRect.h"

namespace vasker {

struct TileRequest {
    TileKey key{};
    double devicePixelsPerMapPoint = 1; ///< exactly as the tile will be seen at rest
    double devicePixelsPerPixel = 1;    ///< the screen's density
    BasemapTheme theme = BasemapTheme::light;

    /// The pixels of the raster tile.
    [[nodiscard]] PixelRect pixels() const noexcept {
        return tilePixelRect(key, devicePixelsPerMapPoint);
    }
    /// The zoom, with fractions, whose tiles are 512 logical pixels wide at the tile's scale.
    [[nodiscard]] double zoom() const noexcept;
};

} // namespace vasker
