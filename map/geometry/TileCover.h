#pragma once
// Which tiles a camera sees.

#include "map/geometry/Camera.h"
#include "map/geometry/TileKey.h"

#include <vector>

namespace vasker {

struct CoverTile {
    TileKey key;
    double offset; ///< the copy of the world it is seen in: map points to the east
    friend bool operator==(const CoverTile&, const CoverTile&) = default;
};

/// The zoom whose tiles are nearest to their own size at `scale` pixels per map point.
[[nodiscard]] int tileZoom(double scale) noexcept;

/// Whether `camera` may see something of the tile or of `margin` pixels around the view.
[[nodiscard]] bool seesTile(const Camera& camera, const CoverTile& tile, double margin);

/// The tiles that cover what `camera` sees, and `margin` pixels around it: of `zoom` where the
/// map is as near as the camera's centre, of smaller zooms farther away. They do not overlap.
/// Those nearest to the middle of the screen come first.
[[nodiscard]] std::vector<CoverTile> tileCover(const Camera& camera, int zoom, double margin);

} // namespace vasker
