#pragma once
// A rectangle in the projected plane, in map points. The null rectangle is the identity of union.

#include "map/geometry/Projection.h"

namespace vasker {

struct MapRect {
    double x;      ///< west edge
    double y;      ///< north edge
    double width;  ///< to the east; negative in the null rectangle only
    double height; ///< to the south; negative in the null rectangle only

    [[nodiscard]] static constexpr MapRect null() noexcept { return {0, 0, -1, -1}; }
    [[nodiscard]] constexpr bool isNull() const noexcept { return width < 0 || height < 0; }
    [[nodiscard]] constexpr MapPoint center() const noexcept {
        return {x + width / 2, y + height / 2};
    }
    [[nodiscard]] constexpr bool contains(MapPoint p) const noexcept {
        return p.x >= x && p.x <= x + width && p.y >= y && p.y <= y + height;
    }
    /// Whether the two share a point; edges count. The null rectangle shares none.
    [[nodiscard]] bool intersects(const MapRect& other) const noexcept;
    [[nodiscard]] MapRect united(const MapRect& other) const noexcept;
    /// As large, and `east` map points farther to the east.
    [[nodiscard]] constexpr MapRect shifted(double east) const noexcept {
        return {x + east, y, width, height};
    }
    /// Smaller by `dx` on the left and on the right and by `dy` at the top and bottom; negative
    /// values make it larger.
    [[nodiscard]] constexpr MapRect inset(double dx, double dy) const noexcept {
        return {x + dx, y + dy, width - 2 * dx, height - 2 * dy};
    }
    friend bool operator==(const MapRect&, const MapRect&) = default;
};

} // namespace vasker
