#include "map/basemap/TilePicture.h"

#include <algorithm>
#include <cmath>

namespace vasker {

PixelRect TileRequest::pixels() const noexcept {
    const MapRect bounds = key.bounds();
    const double scale = devicePixelsPerMapPoint;
    const auto west = static_cast<std::int64_t>(std::floor(bounds.x * scale));
    const auto north = static_cast<std::int64_t>(std::floor(bounds.y * scale));
    const auto east = static_cast<std::int64_t>(std::ceil((bounds.x + bounds.width) * scale));
    const auto south = static_cast<std::int64_t>(std::ceil((bounds.y + bounds.height) * scale));
    return {west, north, static_cast<int>(east - west), static_cast<int>(south - north)};
}

bool TileGround::isPhotographed(TileKey key) const noexcept {
    const auto covers = [key](const ImageryPiece& piece) { return piece.key.zoom <= key.zoom; };
    const auto isQuarter = [key](const ImageryPiece& piece) {
        return piece.key.zoom == key.zoom + 1;
    };
    return std::any_of(imagery.begin(), imagery.end(), covers) ||
           std::count_if(imagery.begin(), imagery.end(), isQuarter) == 4;
}

} // namespace vasker
