#pragma once
// Paints raster tiles of the basemap. Any thread.

#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

namespace vasker {

/// What painting a vector tile may cost, in pixels of outline for each pixel of the raster tile's
/// side. The tiles of the built-in basemap take less than a quarter, that of the whole world two
/// fifths.
inline constexpr double outlineBudget = 1'600;

/// The raster tile, opaque, of the size of request.pixels(). Where the theme asks for imagery and
/// there is none, also in a part of the tile, the drawn map in its dark theme; over imagery that is
/// enlarged, waters. Scales that make no sense are brought into range. Null where the vector tile
/// asks for more than outlineBudget.
[[nodiscard]] QImage paintTile(const TileData& data, const TileRequest& request);

} // namespace vasker
