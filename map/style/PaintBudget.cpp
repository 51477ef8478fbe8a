#include "map/style/PaintBudget.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

namespace vasker {

namespace {

// What takes how long was fitted to the paintings of 130 tiles, invented ones and the built-in
// basemap's: of those that take longest none costs less than three quarters of its time.

/// Of each ring or line that is drawn.
constexpr double pieceCost = 17;
constexpr double pointCost = 2.5;
/// The painter keeps the pixels of an outline in a list for each row, and looks through it for each
/// one. With longer lists it works in more bands of fewer rows, until its memory grows.
constexpr double neighbourCost = 0.075;
constexpr double mostNeighbours = 120;
/// An outline of a line has two sides.
constexpr double sides = 2;
/// Of a pixel of a line that is drawn without an outline, up to a device pixel wide.
constexpr double thinPixelCost = 0.28;
constexpr double thinWidth = 1;
/// Of a point where a line this wide turns, or ends, with a curve.
constexpr double roundPointCost = 33;
constexpr double roundWidth = 3.5;

struct Measure {
    double points = 0;
    double length = 0;
    std::vector<double> pixels; ///< of the outline, row by row
};

Measure measured(std::span<const QPolygonF> lines) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    double top = infinite;
    double bottom = -infinite;
    for (const QPolygonF& line : lines) {
        for (const QPointF& point : line) {
            top = std::min(top, point.y());
            bottom = std::max(bottom, point.y());
        }
    }
    Measure measure;
    if (!(bottom >= top)) {
        return measure;
    }
    const auto rowOf = [top](double y) { return static_cast<std::size_t>(y - top); };
    std::vector<double>& pixels = measure.pixels; // first the differences from row to row
    pixels.resize(rowOf(bottom) + 2);
    for (const QPolygonF& line : lines) {
        measure.points += static_cast<double>(line.size());
        for (qsizetype i = 1; i < line.size(); ++i) {
            const QPointF step = line[i] - line[i - 1];
            measure.length += std::hypot(step.x(), step.y());
            const std::size_t first = rowOf(std::min(line[i - 1].y(), line[i].y()));
            const std::size_t end = rowOf(std::max(line[i - 1].y(), line[i].y())) + 1;
            const double ofRow =
                (std::abs(step.x()) + std::abs(step.y()) + 0.5) / static_cast<double>(end - first);
            pixels[first] += ofRow;
            pixels[end] -= ofRow;
        }
    }
    std::partial_sum(pixels.cbegin(), pixels.cend(), pixels.begin());
    return measure;
}

/// Of an outline with `times` as many pixels in each row.
double outlineCost(const Measure& measure, double times) {
    double cost = times * pointCost * measure.points;
    for (const double pixels : measure.pixels) {
        const double ofRow = times * pixels;
        cost += ofRow * (1 + neighbourCost * std::min(ofRow, mostNeighbours));
    }
    return cost;
}

} // namespace

double clipCost(std::size_t points) noexcept {
    constexpr double partCost = 1;
    constexpr double clippedPointCost = 0.25;
    return partCost + clippedPointCost * static_cast<double>(points);
}

double fillCost(std::span<const QPolygonF> rings) {
    return pieceCost * static_cast<double>(rings.size()) + outlineCost(measured(rings), 1);
}

double strokeCost(std::span<const QPolygonF> lines, double width) {
    const Measure measure = measured(lines);
    const auto pieces = static_cast<double>(lines.size());
    if (width <= thinWidth) {
        return pointCost * (pieces + measure.points) + thinPixelCost * measure.length;
    }
    return pieceCost * pieces + outlineCost(measure, sides) +
           (width > roundWidth ? roundPointCost * measure.points : 0);
}

} // namespace vasker
