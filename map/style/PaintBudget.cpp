#include "map/style/PaintBudget.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace vasker {

namespace {

/// Of each ring or line, beside its length.
constexpr double pieceCost = 40;
/// Of two outlines that cross the same row of pixels: the painter sorts them.
constexpr double pairCost = 0.15;
/// A line of so many pixels costs twice as much as one of the thinnest that have two edges.
constexpr double doubleCostWidth = 8;
/// Up to this width, in device pixels, a line is drawn without an outline.
constexpr double widthWithoutOutline = 1;

struct Outline {
    double length = 0;
    double pairs = 0; ///< of crossings, in all rows
};

Outline measured(std::span<const QPolygonF> lines) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    double top = infinite;
    double bottom = -infinite;
    for (const QPolygonF& line : lines) {
        for (const QPointF& point : line) {
            top = std::min(top, point.y());
            bottom = std::max(bottom, point.y());
        }
    }
    Outline outline;
    if (!(bottom >= top)) {
        return outline;
    }
    const auto rowOf = [top](double y) { return static_cast<std::size_t>(y - top); };
    std::vector<int> changes(rowOf(bottom) + 2); // of the number of crossings, row by row
    for (const QPolygonF& line : lines) {
        for (qsizetype i = 1; i < line.size(); ++i) {
            outline.length += QLineF(line[i - 1], line[i]).length();
            ++changes[rowOf(std::min(line[i - 1].y(), line[i].y()))];
            --changes[rowOf(std::max(line[i - 1].y(), line[i].y())) + 1];
        }
    }
    double crossings = 0;
    for (const int change : changes) {
        crossings += change;
        outline.pairs += crossings * crossings;
    }
    return outline;
}

} // namespace

double fillCost(std::span<const QPolygonF> rings) {
    const Outline outline = measured(rings);
    return pieceCost * static_cast<double>(rings.size()) + outline.length +
           pairCost * outline.pairs;
}

double strokeCost(std::span<const QPolygonF> lines, double width) {
    const Outline outline = measured(lines);
    const double own = pieceCost * static_cast<double>(lines.size()) + outline.length;
    if (width <= widthWithoutOutline) {
        return own;
    }
    constexpr double edges = 2;
    return own + edges * outline.length * (1 + width / doubleCostWidth) +
           edges * edges * pairCost * outline.pairs;
}

} // namespace vasker
