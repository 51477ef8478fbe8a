#pragma once
// Straight lines between two points, on the map plane or on the screen.

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace vasker {

/// The distance of `point` to the segment from `a` to `b`, in the unit of the points; `a` and `b`
/// may be one place. `Point` has the coordinates x and y.
template <typename Point>
[[nodiscard]] double distanceToSegment(Point point,
                                       std::type_identity_t<Point> a,
                                       std::type_identity_t<Point> b) noexcept {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along =
        square > 0 ? std::clamp(((point.x - a.x) * dx + (point.y - a.y) * dy) / square, 0.0, 1.0)
                   : 0;
    return std::hypot(point.x - a.x - along * dx, point.y - a.y - along * dy);
}

} // namespace vasker
