#pragma once
// Draws the data of one vector tile, layer by layer of the style.

#include "map/style/PaintBudget.h"
#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

class QPainter;

namespace vasker {

/// Draws what the vector tile says in the colours of `theme`, whatever theme the request asks for.
/// Values that are no numbers or lie far out cost only themselves. Ends where `budget` is spent,
/// with some of the tile drawn.
void paintVectorTile(QPainter& painter,
                     const TileData& data,
                     const TileRequest& request,
                     BasemapTheme theme,
                     PaintBudget& budget);

} // namespace vasker
