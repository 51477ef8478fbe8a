#pragma once
// What is known of the basemap of one tile: its own data, or an ancestor's, of which a part is
// shown.

#include "map/geometry/TileKey.h"
#include "map/tiles/VectorTile.h"

#include <QImage>

#include <memory>
#include <vector>

namespace vasker {

/// Imagery of one tile. Services cut theirs into tiles of 256 pixels, so that four of the next zoom
/// make one of ours.
struct ImageryTile {
    TileKey key;
    QImage image;
    int margin = 0; ///< of `image`: pixels of the neighbours around the tile's own

    /// By how many zooms the imagery is enlarged where it shows `shown`: 0 or less is sharp.
    [[nodiscard]] int enlargement(TileKey shown) const noexcept {
        return shown.zoom + 1 - key.zoom;
    }
    /// Whether `shown` needs waters drawn over this: it is enlarged, and coarser than the built-in
    /// vector tiles are.
    [[nodiscard]] bool needsWaters(TileKey shown) const noexcept {
        return key.zoom <= 7 && enlargement(shown) >= 2;
    }
};

struct TileData {
    std::shared_ptr<const VectorTile> vector; ///< null: none
    TileKey vectorKey{};                      ///< the tile itself or an ancestor
    std::vector<ImageryTile> imagery;         ///< in drawing order; ancestors and descendants

    /// Whether imagery covers `key` whole: that of itself or of an ancestor, or of all four
    /// quarters.
    [[nodiscard]] bool hasFullImagery(TileKey key) const noexcept;
    /// Whether `key` shows imagery over which waters are drawn.
    [[nodiscard]] bool needsWaters(TileKey key) const noexcept;
};

} // namespace vasker
