#pragma once
// The part of a screen that a map has.

namespace vasker {

/// A place on the map item: logical pixels from its top-left corner, y down.
struct ScreenPoint {
    double x;
    double y;
    friend bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

/// The size of the map item in logical pixels, at least 1 by 1, and the margins of it that
/// something else covers. The margins leave at least a pixel free.
struct Viewport {
    double width;
    double height;
    double coveredBelow = 0;
    double coveredRight = 0;
    double coveredLeft = 0;

    /// Half the size of the free part.
    [[nodiscard]] ScreenPoint freeHalf() const noexcept;
    /// The middle of the free part.
    [[nodiscard]] ScreenPoint middle() const noexcept;
    /// Whether `point` lies in the free part, its edges included.
    [[nodiscard]] bool isFree(ScreenPoint point) const noexcept;
    /// The nearest viewport that keeps what is said above.
    [[nodiscard]] Viewport usable() const noexcept;

    friend bool operator==(const Viewport&, const Viewport&) = default;
};

} // namespace vasker
