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

} // namespace vasker
