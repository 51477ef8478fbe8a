#include "map/style/TilePicture.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// The first pixel beyond a tile that ends at `end` map points: at the world's end all is its own.
std::int64_t endPixel(double end, double scale) noexcept {
    const double pixel = end * scale;
    return static_cast<std::int64_t>(end < worldSize ? std::floor(pixel) : std::ceil(pixel));
}

} // namespace

PixelRect TileRequest::pixels() const noexcept {
    const MapRect bounds = key.bounds();
    const double scale = devicePixelsPerMapPoint;
    const auto west = static_cast<std::int64_t>(std::floor(bounds.x * scale));
    const auto north = static_cast<std::int64_t>(std::floor(bounds.y * scale));
    const std::int64_t east = endPixel(bounds.x + bounds.width, scale);
    const std::int64_t south = endPixel(bounds.y + bounds.height, scale);
    return {west, north, static_cast<int>(east - west), static_cast<int>(south - north)};
}

bool TileData::isPhotographed(TileKey key) const noexcept {
    const auto covers = [key](const ImageryPiece& piece) { return piece.key.zoom <= key.zoom; };
    const auto isQuarter = [key](const ImageryPiece& piece) {
        return piece.key.zoom == key.zoom + 1;
    };
    return std::any_of(imagery.begin(), imagery.end(), covers) ||
           std::count_if(imagery.begin(), imagery.end(), isQuarter) == 4;
}

} // namespace vasker
