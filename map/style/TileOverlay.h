#pragma once
// What is painted over a raster tile of the basemap, such as records on a machine without a
// graphics card. The basemap knows this interface and no implementation.

#include "map/geometry/MapRect.h"

class QImage;

namespace vasker {

class TileOverlay {
  public:
    TileOverlay() = default;
    virtual ~TileOverlay() = default;
    TileOverlay(const TileOverlay&) = delete;
    TileOverlay& operator=(const TileOverlay&) = delete;

    /// Paints what lies in and around `bounds` (map points) on `image`, an opaque raster tile that
    /// covers them. Any thread, several at once.
    virtual void
    paint(QImage& image, const MapRect& bounds, double devicePixelsPerMapPoint) const = 0;

    /// Whether `other` paints the same there. False where that is not known.
    [[nodiscard]] virtual bool paintsLike(const TileOverlay& /*other*/,
                                          const MapRect& /*bounds*/,
                                          double /*devicePixelsPerMapPoint*/) const {
        return false;
    }
};

} // namespace vasker
