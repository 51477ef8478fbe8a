#pragma once
// Draws the data of one vector tile, layer by layer of the style.

#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

class QPainter;

namespace vasker {

/// Draws what the vector tile says in the colours of `theme`, whatever theme the request asks for.
/// Values that are no numbers or lie far out cost only themselves.
void paintVectorTile(QPainter& painter,
                     const TileData& data,
                     const TileRequest& request,
                     BasemapTheme theme);

} // namespace vasker
