#pragma once
// The square tiles that basemaps are cut into: zoom 0 is the whole projected world in one tile of
// 512 pixels, each further zoom halves the side.

#include "map/geometry/MapRect.h"

#include <cstdint>
#include <utility> // std::strong_ordering: moc 6.4 cannot read <compare>

namespace vasker {

struct TileKey {
    int zoom;            ///< 0 to maximumTileZoom
    std::int32_t column; ///< 0 to 2^zoom - 1, west to east
    std::int32_t row;    ///< 0 to 2^zoom - 1, north to south
    friend constexpr auto operator<=>(const TileKey&, const TileKey&) = default;

    /// Whether the numbers are within their ranges.
    [[nodiscard]] constexpr bool isValid() const noexcept;
    /// In map points.
    [[nodiscard]] constexpr double side() const noexcept {
        return worldSize / static_cast<double>(std::int64_t{1} << zoom);
    }
    [[nodiscard]] constexpr MapRect bounds() const noexcept {
        return {column * side(), row * side(), side(), side()};
    }
    /// One of the four tiles of the next zoom in this one: 0 to 3, row by row.
    [[nodiscard]] constexpr TileKey child(int number) const noexcept {
        return {zoom + 1, 2 * column + number % 2, 2 * row + number / 2};
    }
    /// The tile that holds this one, `levels` zooms up; 0 to zoom.
    [[nodiscard]] constexpr TileKey ancestor(int levels) const noexcept {
        return {zoom - levels, column >> levels, row >> levels};
    }
};

inline constexpr int tilePixels = 512; ///< logical pixels of a side at the tile's own scale
inline constexpr int maximumTileZoom = 22;

constexpr bool TileKey::isValid() const noexcept {
    return zoom >= 0 && zoom <= maximumTileZoom && column >= 0 && column < (1 << zoom) &&
           row >= 0 && row < (1 << zoom);
}

} // namespace vasker
