#pragma once
// The tiles that services are known not to have.

#include "map/tileservice/ServiceTile.h"

#include <cstddef>
#include <deque>
#include <set>

namespace vasker {

/// Remembers the latest `most` of those it is told.
class MissingTiles {
  public:
    explicit MissingTiles(std::size_t most) : m_most(most) {}

    [[nodiscard]] bool contains(const ServiceTile& tile) const { return m_tiles.contains(tile); }
    void insert(const ServiceTile& tile) {
        if (!m_tiles.insert(tile).second) {
            return;
        }
        m_order.push_back(tile);
        if (m_order.size() > m_most) {
            m_tiles.erase(m_order.front());
            m_order.pop_front();
        }
    }

  private:
    std::size_t m_most;
    std::set<ServiceTile> m_tiles;
    std::deque<ServiceTile> m_order;
};

} // namespace vasker
