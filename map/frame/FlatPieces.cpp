#include "map/frame/FlatPieces.h"

#include <QPointF>

#include <algorithm>
#include <array>
#include <cmath>

namespace vasker {

namespace {

/// In pixels of the device.
constexpr double tolerance = 0.25;

/// In pixels of the image, the sides of a piece: to begin one takes as long as a hundred pixels.
constexpr double minimumSide = 16;

using Corners = std::array<QPointF, 4>; ///< from the top left, clockwise

Corners cornersOf(const QTransform& transform, const QRectF& part) {
    return {transform.map(part.topLeft()),
            transform.map(part.topRight()),
            transform.map(part.bottomRight()),
            transform.map(part.bottomLeft())};
}

QPointF middleOf(const Corners& corners) {
    return (corners[0] + corners[1] + corners[2] + corners[3]) / 4;
}

double longer(QPointF point) {
    return std::max(std::abs(point.x()), std::abs(point.y()));
}

/// How far flattened() is off, at the corners or in the middle.
double errorOf(const QTransform& transform, const QRectF& part) {
    const Corners corners = cornersOf(transform, part);
    return std::max(longer(corners[0] - corners[1] + corners[2] - corners[3]) / 4,
                    longer(middleOf(corners) - transform.map(part.center())));
}

/// The transform without perspective that has the least squares of errors at the corners of `part`.
QTransform flattened(const Corners& corners, const QRectF& part) {
    const QPointF right = (corners[1] + corners[2] - corners[0] - corners[3]) / (2 * part.width());
    const QPointF down = (corners[2] + corners[3] - corners[0] - corners[1]) / (2 * part.height());
    const QPointF origin = middleOf(corners) - right * part.center().x() - down * part.center().y();
    return {right.x(), right.y(), down.x(), down.y(), origin.x(), origin.y()};
}

QRectF boundsOf(const Corners& corners) {
    const auto [left, right] = std::ranges::minmax(corners, {}, &QPointF::x);
    const auto [top, bottom] = std::ranges::minmax(corners, {}, &QPointF::y);
    return {QPointF(left.x(), top.y()), QPointF(right.x(), bottom.y())};
}

bool isBehindTheEye(const QTransform& transform, const QRectF& part) {
    const auto depth = [&](QPointF point) {
        return transform.m13() * point.x() + transform.m23() * point.y() + transform.m33();
    };
    return std::min({depth(part.topLeft()),
                     depth(part.topRight()),
                     depth(part.bottomRight()),
                     depth(part.bottomLeft())}) <= 0;
}

} // namespace

std::vector<FlatPiece>
flatPieces(const QTransform& transform, const QRectF& image, const QRectF& seen) {
    if (isBehindTheEye(transform, image)) {
        return {};
    }
    int count = 1; // across and down
    const auto partAt = [&](int column, int row) {
        const QSizeF size = image.size() / count;
        return QRectF(image.left() + column * size.width(),
                      image.top() + row * size.height(),
                      size.width(),
                      size.height());
    };
    const auto isFlat = [&] { // the error is largest in the corner that is nearest to the eye
        const int last = count - 1;
        return std::max({errorOf(transform, partAt(0, 0)),
                         errorOf(transform, partAt(last, 0)),
                         errorOf(transform, partAt(last, last)),
                         errorOf(transform, partAt(0, last))}) <= tolerance;
    };
    while (!isFlat()) {
        ++count;
        if (std::min(image.width(), image.height()) / count < minimumSide) {
            return {};
        }
    }
    std::vector<FlatPiece> pieces;
    for (int row = 0; row < count; ++row) {
        for (int column = 0; column < count; ++column) {
            const QRectF part = partAt(column, row);
            const Corners corners = cornersOf(transform, part);
            if (boundsOf(corners).adjusted(-1, -1, 1, 1).intersects(seen)) {
                pieces.push_back({part, flattened(corners, part)});
            }
        }
    }
    return pieces;
}

} // namespace vasker
