#pragma once
// A rectangle on the map item: logical pixels, y down.

namespace vasker {

struct ScreenRect {
    double x;
    double y;
    double width;
    double height;

    /// Whether the two share more than an edge.
    [[nodiscard]] constexpr bool overlaps(const ScreenRect& other) const noexcept {
        return x < other.x + other.width && other.x < x + width && y < other.y + other.height &&
               other.y < y + height;
    }
    [[nodiscard]] constexpr bool contains(const ScreenRect& other) const noexcept {
        return other.x >= x && other.y >= y && other.x + other.width <= x + width &&
               other.y + other.height <= y + height;
    }
    friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

} // namespace vasker
