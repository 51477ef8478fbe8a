#pragma once
// Levels of detail: half steps of zoom, so that geometry is made anew every time the scale grows or
// shrinks by the square root of two, and the square tiles of each level.

#include "map/geometry/MapRect.h"

#include <compare>
#include <cstdint>

namespace vasker {

/// A level serves the scales above its predecessor's and up to its own.
class DetailLevel {
  public:
    explicit constexpr DetailLevel(int number) noexcept : m_number(number) {}
    /// The level for `scale` logical pixels per map point (positive).
    [[nodiscard]] static DetailLevel forScale(double scale) noexcept;

    /// The largest and the smallest scale that the level serves, in pixels per map point.
    [[nodiscard]] double maximumScale() const noexcept;
    [[nodiscard]] double minimumScale() const noexcept;
    /// Side of the level's tiles in map points: 512 pixels at its maximum scale.
    [[nodiscard]] double tileSize() const noexcept { return 512 / maximumScale(); }

    friend constexpr bool operator==(DetailLevel, DetailLevel) = default;

  private:
    int m_number;
};

/// A column and a row of a level's tiles, counted from the world's north-west corner.
struct TileIndex {
    std::int32_t column;
    std::int32_t row;
    friend constexpr auto operator<=>(const TileIndex&, const TileIndex&) = default;

    [[nodiscard]] MapRect bounds(DetailLevel level) const noexcept {
        return {
            column * level.tileSize(), row * level.tileSize(), level.tileSize(), level.tileSize()};
    }
};

/// The tiles that a rectangle touches, first and last included.
struct TileRange {
    TileIndex first;
    TileIndex last;
    [[nodiscard]] static TileRange covering(const MapRect& rect, DetailLevel level) noexcept;
    [[nodiscard]] constexpr bool contains(TileIndex tile) const noexcept {
        return tile.column >= first.column && tile.column <= last.column && tile.row >= first.row &&
               tile.row <= last.row;
    }
};

} // namespace vasker
