#pragma once
// What is painted over a raster tile of the basemap, such as records on a machine without a
// graphics card. The basemap knows this contract and not what fulfils it.

#include "map/geometry/MapRect.h"

class QPainter;

namespace vasker {

class TileOverlay {
  public:
    TileOverlay() = default;
    virtual ~TileOverlay() = default;
    TileOverlay(const TileOverlay&) = delete;
    TileOverlay& operator=(const TileOverlay&) = delete;

    /// Paints what lies in and around `bounds` (map points), all that the tile covers. The
    /// painter's unit is the device pixel, its origin the north-west corner of `bounds`. Any
    /// thread, several at once.
    virtual void
    paint(QPainter& painter, const MapRect& bounds, double devicePixelsPerMapPoint) const = 0;
};

} // namespace vasker
