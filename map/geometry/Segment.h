#pragma once
// Straight lines between two points, on the map plane or on the screen.

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace vasker {

/// On the segment from `a` to `b`, which may be one place: where the place nearest to `point` lies,
/// 0 at `a` and 1 at `b`. `Point` has the coordinates x and y.
template <typename Point>
[[nodiscard]] double nearestOnSegment(Point point,
                                      std::type_identity_t<Point> a,
                                      std::type_identity_t<Point> b) noexcept {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    return square > 0 ? std::clamp(((point.x - a.x) * dx + (point.y - a.y) * dy) / square, 0.0, 1.0)
                      : 0;
}

/// The distance of `point` to that segment, in the unit of the points.
template <typename Point>
[[nodiscard]] double distanceToSegment(Point point,
                                       std::type_identity_t<Point> a,
                                       std::type_identity_t<Point> b) noexcept {
    const double along = nearestOnSegment(point, a, b);
    return std::hypot(point.x - a.x - along * (b.x - a.x), point.y - a.y - along * (b.y - a.y));
}

} // namespace vasker
