#pragma once
// A rectangle of whole device pixels, counted from the world's north-west corner.

#include "map/geometry/TileKey.h"

#include <cstdint>

namespace vasker {

struct PixelRect {
    std::int64_t x;
    std::int64_t y;
    int width;
    int height;
    friend bool operator==(const PixelRect&, const PixelRect&) = default;

    /// In map points, at `devicePixelsPerMapPoint`.
    [[nodiscard]] MapRect bounds(double devicePixelsPerMapPoint) const noexcept;
};

/// The pixels of the raster tile for `key` at that scale. Tiles of one scale stand on one grid of
/// pixels, so that they meet without a seam and need no smoothing. A pixel that two tiles touch
/// belongs to the eastern and the southern one alone: covered twice, it would show while a tile
/// fades in.
[[nodiscard]] PixelRect tilePixelRect(TileKey key, double devicePixelsPerMapPoint) noexcept;

} // namespace vasker
