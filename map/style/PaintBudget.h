#pragma once
// A limit to the cost of painting. A few bytes of a vector tile can ask for minutes: the painter's
// time grows with the length of outlines, and with how many of their pixels lie in one row.

#include <QPolygonF>

#include <cstddef>
#include <span>

namespace vasker {

/// What filling these rings at once takes, in pixels of a lonely outline, which take some 60
/// nanoseconds each. The rings are in device pixels and lie in or near a raster tile.
[[nodiscard]] double fillCost(std::span<const QPolygonF> rings);
/// What drawing these lines at once takes, `width` device pixels wide.
[[nodiscard]] double strokeCost(std::span<const QPolygonF> lines, double width);

/// What finding the part of a ring or line takes that lies in a raster tile, wherever it runs.
[[nodiscard]] double clipCost(std::size_t points) noexcept;

class PaintBudget {
  public:
    /// In pixels of outline.
    explicit PaintBudget(double pixels) noexcept : m_left(pixels) {}

    /// Spends `cost` pixels; whether the budget held them.
    bool spend(double cost) noexcept {
        m_left -= cost;
        return m_left >= 0;
    }
    /// Below zero once a spend() asked for more.
    [[nodiscard]] double left() const noexcept { return m_left; }
    [[nodiscard]] bool isSpent() const noexcept { return m_left < 0; }

  private:
    double m_left;
};

} // namespace vasker
