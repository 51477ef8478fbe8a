#pragma once
// Cuts along the axes, by which geometry is clipped to a rectangle.

#include <QPointF>
#include <QRectF>

#include <array>

namespace vasker {

[[nodiscard]] inline QPointF between(QPointF a, QPointF b, double part) {
    return a + (b - a) * part;
}

/// The kept side of a cut: `sign` times the coordinate is at least `limit`.
struct HalfPlane {
    bool vertical; ///< about x, else about y
    double sign;
    double limit;

    /// How far inside a point lies; negative: outside.
    [[nodiscard]] double depth(QPointF p) const {
        return sign * (vertical ? p.x() : p.y()) - limit;
    }
};

/// The half planes whose common part is the rectangle.
[[nodiscard]] inline std::array<HalfPlane, 4> sidesOf(const QRectF& rect) {
    return {{{true, 1, rect.left()},
             {true, -1, -rect.right()},
             {false, 1, rect.top()},
             {false, -1, -rect.bottom()}}};
}

} // namespace vasker
