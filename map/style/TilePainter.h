#pragma once
// Paints raster tiles of the basemap. Any thread.

#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

namespace vasker {

/// What painting a vector tile may cost, in pixels of outline for each pixel of the raster tile's
/// side: less than 100 milliseconds for a tile of 512 pixels. That of the whole world takes three
/// tenths, the other tiles of the built-in basemap a sixth.
inline constexpr double outlineBudget = 2'280;

/// The raster tile, opaque, of the size of request.pixels(). Where the theme asks for imagery and
/// there is none, also in a part of the tile, the drawn map in its dark theme; over imagery that is
/// enlarged, waters. Scales that make no sense are brought into range. Null where the vector tile
/// asks for more than outlineBudget.
[[nodiscard]] QImage paintTile(const TileData& data, const TileRequest& request);

} // namespace vasker
