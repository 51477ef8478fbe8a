#pragma once
// Raster tiles, each on a quadrilateral in perspective.

#include "map/geometry/Camera.h"

#include <QImage>

#include <array>
#include <cstdint>
#include <vector>

namespace vasker {

/// The number of a raster tile, never used again for another one.
using TileNumber = std::uint64_t;

/// Where a raster tile is seen.
struct TileQuad {
    TileNumber tile{};
    /// From the top left, clockwise, in item pixels. Without an area nothing is seen; the texture
    /// is made all the same.
    std::array<PerspectivePoint, 4> corners{};
    float opacity = 1;
};

/// The image of a raster tile, opaque.
struct TileImage {
    TileNumber tile;
    QImage image;
};

struct TileLayer {
    std::vector<TileQuad> quads; ///< in drawing order; those whose image never came are passed over
    /// Handed over, once: from now on the scene graph keeps them as textures.
    std::vector<TileImage> newImages;
    std::vector<TileNumber> kept; ///< in ascending order: the tiles whose textures are still needed
};

} // namespace vasker
