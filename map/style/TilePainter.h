#pragma once
// Paints raster tiles of the basemap. Any thread.

#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

namespace vasker {

/// The raster tile, opaque, of the size of request.pixels(). Where the theme asks for imagery and
/// there is none, also in a part of the tile, the drawn map in its dark theme. Scales that make no
/// sense are brought into range.
[[nodiscard]] QImage paintTile(const TileData& data, const TileRequest& request);

} // namespace vasker
