#include "map/style/PixelRect.h"

#include <cmath>

namespace vasker {

namespace {

/// The first pixel beyond a tile that ends at `end` map points; at the world's end the last tile
/// has all of its last pixel.
std::int64_t endPixel(double end, double scale) noexcept {
    const double pixel = end * scale;
    return static_cast<std::int64_t>(end < worldSize ? std::floor(pixel) : std::ceil(pixel));
}

} // namespace

MapRect PixelRect::bounds(double devicePixelsPerMapPoint) const noexcept {
    return {static_cast<double>(x) / devicePixelsPerMapPoint,
            static_cast<double>(y) / devicePixelsPerMapPoint,
            width / devicePixelsPerMapPoint,
            height / devicePixelsPerMapPoint};
}

PixelRect tilePixelRect(TileKey key, double devicePixelsPerMapPoint) noexcept {
    const MapRect bounds = key.bounds();
    const double scale = devicePixelsPerMapPoint;
    const auto west = static_cast<std::int64_t>(std::floor(bounds.x * scale));
    const auto north = static_cast<std::int64_t>(std::floor(bounds.y * scale));
    const std::int64_t east = endPixel(bounds.x + bounds.width, scale);
    const std::int64_t south = endPixel(bounds.y + bounds.height, scale);
    return {west, north, static_cast<int>(east - west), static_cast<int>(south - north)};
}

} // namespace vasker
