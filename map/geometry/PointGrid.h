#pragma once
// Points in the cells of a grid, to find those near a place. Cells share a fixed number of buckets,
// so that nothing is allocated per cell however far the points are spread.

#include "map/geometry/Projection.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace vasker {

class PointGrid {
  public:
    /// Cells of `cellWidth` by `cellHeight`, in the unit of the points; both positive. `expected`
    /// is about how many points will come.
    PointGrid(double cellWidth, double cellHeight, std::size_t expected);

    void insert(MapPoint point);

    /// Whether `test(point, number)` is true for any point that stands nearer than a cell's size to
    /// `place`, across and down. Points are numbered from 0 as they were inserted; some are offered
    /// twice, and some that are farther away.
    template <typename Test>
    [[nodiscard]] bool anyNear(MapPoint place, Test test) const {
        const std::int64_t column = columnOf(place);
        const std::int64_t row = rowOf(place);
        for (std::int64_t r = row - 1; r <= row + 1; ++r) {
            for (std::int64_t c = column - 1; c <= column + 1; ++c) {
                for (std::uint32_t i = m_first[bucketOf(c, r)]; i != none; i = m_next[i]) {
                    if (test(m_points[i], std::size_t{i})) {
                        return true;
                    }
                }
            }
        }
        return false;
    }

  private:
    static constexpr std::uint32_t none = UINT32_MAX;

    [[nodiscard]] std::int64_t columnOf(MapPoint point) const {
        return static_cast<std::int64_t>(std::floor(point.x / m_cellWidth));
    }
    [[nodiscard]] std::int64_t rowOf(MapPoint point) const {
        return static_cast<std::int64_t>(std::floor(point.y / m_cellHeight));
    }
    [[nodiscard]] std::size_t bucketOf(std::int64_t column, std::int64_t row) const {
        // Two odd constants (from the golden ratio and from the square root of two) mix the axes.
        const std::uint64_t mixed = static_cast<std::uint64_t>(column) * 0x9E37'79B9'7F4A'7C15U ^
                                    static_cast<std::uint64_t>(row) * 0xB504'F333'F9DE'6485U;
        return (mixed >> 32U) & (m_first.size() - 1);
    }

    double m_cellWidth;
    double m_cellHeight;
    std::vector<MapPoint> m_points;
    std::vector<std::uint32_t> m_next;  ///< the point before in the same bucket
    std::vector<std::uint32_t> m_first; ///< the newest point of each bucket
};

} // namespace vasker
