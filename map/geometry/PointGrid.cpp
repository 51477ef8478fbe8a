#include "map/geometry/PointGrid.h"

#include <bit>

namespace vasker {

PointGrid::PointGrid(double cellWidth, double cellHeight, std::size_t expected)
    : m_cellWidth(cellWidth), m_cellHeight(cellHeight),
      m_first(std::bit_ceil(2 * expected + 16), none) {
    m_points.reserve(expected);
    m_next.reserve(expected);
}

void PointGrid::insert(MapPoint point) {
    std::uint32_t& first = m_first[bucketOf(columnOf(point), rowOf(point))];
    m_next.push_back(first);
    first = static_cast<std::uint32_t>(m_points.size());
    m_points.push_back(point);
}

std::size_t PointGrid::bucketOf(std::int64_t column, std::int64_t row) const {
    // Two odd constants (from the golden ratio and from the square root of two) mix the two axes.
    const std::uint64_t mixed = static_cast<std::uint64_t>(column) * 0x9E37'79B9'7F4A'7C15U ^
                                static_cast<std::uint64_t>(row) * 0xB504'F333'F9DE'6485U;
    return (mixed >> 32U) & (m_first.size() - 1);
}

} // namespace vasker
