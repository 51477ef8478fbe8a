#include "map/style/TileData.h"

#include <algorithm>

namespace vasker {

bool TileData::hasFullImagery(TileKey key) const noexcept {
    const auto covers = [key](const ImageryTile& tile) { return tile.key.zoom <= key.zoom; };
    const auto isQuarter = [key](const ImageryTile& tile) { return tile.key.zoom == key.zoom + 1; };
    return std::ranges::any_of(imagery, covers) || std::ranges::count_if(imagery, isQuarter) == 4;
}

bool TileData::needsWaters(TileKey key) const noexcept {
    return std::ranges::any_of(imagery,
                               [key](const ImageryTile& tile) { return tile.needsWaters(key); });
}

} // namespace vasker
