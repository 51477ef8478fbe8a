#include "map/records/MarkerRanks.h"

#include "presentation/Symbols.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace vasker {

MarkerRanks::MarkerRanks(const OpenMapRelease& release) {
    struct Kind {
        std::pair<bool, std::size_t> order; ///< quiet or not; how many records without a route
        std::uint32_t rank = 0;
    };
    std::unordered_map<std::string_view, Kind> kinds;
    for (const auto& asset : release.assets) {
        const auto [kind, isNew] = kinds.try_emplace(asset.kind);
        if (isNew) {
            kind->second.order.first = !hasOwnSymbol(asset.kind);
        }
        kind->second.order.second += asset.hasRoute() ? 0U : 1U;
    }
    std::vector<Kind*> inOrder;
    inOrder.reserve(kinds.size());
    for (auto& [name, kind] : kinds) {
        inOrder.push_back(&kind);
    }
    std::ranges::sort(inOrder, {}, &Kind::order);
    for (std::size_t i = 0; i < inOrder.size(); ++i) {
        const bool isSame = i > 0 && inOrder[i]->order == inOrder[i - 1]->order;
        inOrder[i]->rank = static_cast<std::uint32_t>(isSame ? m_count - 1 : m_count++);
        m_firstQuiet += !isSame && !inOrder[i]->order.first ? 1U : 0U;
    }
    m_ranks.reserve(release.assets.size());
    for (const auto& asset : release.assets) {
        m_ranks.push_back(kinds[asset.kind].rank);
    }
}

} // namespace vasker
