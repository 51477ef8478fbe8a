#pragma once
// Draws the data of one vector tile, layer by layer of the style.

#include "map/style/PaintBudget.h"
#include "map/style/StyleLayer.h"
#include "map/style/TileData.h"
#include "map/style/TileRequest.h"

#include <span>

class QPainter;

namespace vasker {

/// Draws `layers` of the vector tile in the colours of `theme`, whatever theme the request asks
/// for. Values that are no numbers or lie far out cost only themselves. Ends where `budget` is
/// spent, with some of the tile drawn.
void paintVectorTile(QPainter& painter,
                     const TileData& data,
                     const TileRequest& request,
                     BasemapTheme theme,
                     std::span<const StyleLayer> layers,
                     PaintBudget& budget);

} // namespace vasker
