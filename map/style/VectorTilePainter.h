#pragma once
// The data of one tile on its picture: areas, lines, borders, in the order of the style's tables.

#include "map/style/TilePicture.h"

class QPainter;

namespace vasker {

/// Paints what the ground's data say in the dress of `look`, whatever look the request asks for.
/// Values that are no numbers or lie far out cost only themselves.
void paintVectorTile(QPainter& painter,
                     const TileData& ground,
                     const TileRequest& request,
                     BasemapTheme look);

} // namespace vasker
