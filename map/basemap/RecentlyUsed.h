#pragma once
// The things of a kind that were used last, up to a number of them.

#include <cstddef>
#include <list>
#include <map>
#include <utility>

namespace vasker {

template <typename Key, typename Value>
class RecentlyUsed {
  public:
    explicit RecentlyUsed(std::size_t limit) : m_limit(limit) {}

    /// What stands under `key`, which counts as used now; null where nothing does. Valid until the
    /// next change.
    [[nodiscard]] const Value* find(const Key& key) {
        const auto found = m_places.find(key);
        if (found == m_places.end()) {
            return nullptr;
        }
        m_items.splice(m_items.begin(), m_items, found->second);
        return &found->second->second;
    }

    /// Puts `value` under `key`; what was used longest ago goes when there are too many.
    void put(const Key& key, Value value) {
        erase(key);
        m_items.emplace_front(key, std::move(value));
        m_places.emplace(key, m_items.begin());
        if (m_items.size() > m_limit) {
            m_places.erase(m_items.back().first);
            m_items.pop_back();
        }
    }

    /// Nothing stands under `key` any more.
    void erase(const Key& key) {
        if (const auto found = m_places.find(key); found != m_places.end()) {
            m_items.erase(found->second);
            m_places.erase(found);
        }
    }

  private:
    using Items = std::list<std::pair<Key, Value>>;

    std::size_t m_limit;
    Items m_items; ///< the one used last comes first
    std::map<Key, typename Items::iterator> m_places;
};

} // namespace vasker
