#pragma once
// Makes enlarged imagery run from one tile into the next.

#include "map/style/TileData.h"

#include <functional>

namespace vasker {

/// The image of a tile; null where there is none.
using ImageryLookup = std::function<QImage(TileKey)>;

/// Gives `tile` a margin of one pixel: of the neighbours where `shown`, a descendant of it, touches
/// them, and of its own outermost pixels elsewhere, where a neighbour is missing and where its
/// image has another size. Only neighbours that are touched are looked up, across the date line as
/// well; there are none beyond the poles.
void addMargin(ImageryTile& tile, TileKey shown, const ImageryLookup& imageOf);

} // namespace vasker
