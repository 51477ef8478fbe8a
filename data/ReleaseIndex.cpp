#include "data/ReleaseIndex.h"

#include "data/Cancelled.h"
#include "data/Classification.h"
#include "data/text/NameOrder.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vasker {

namespace {

using Asset = OpenMapRelease::Asset;

std::vector<AssetIndex> nameOrderOf(const std::vector<Asset>& assets,
                                    const TextLocale& locale,
                                    const std::stop_token& stop) {
    const NameOrder order(locale);
    std::vector<std::pair<std::string, AssetIndex>> keyed;
    keyed.reserve(assets.size());
    for (const Asset& asset : assets) {
        throwIfCancelled(stop);
        keyed.emplace_back(order.sortKey(asset.name), static_cast<AssetIndex>(keyed.size()));
    }
    std::ranges::sort(keyed); // equal keys in file order
    std::vector<AssetIndex> sorted(assets.size());
    std::ranges::transform(keyed, sorted.begin(), [](const auto& each) { return each.second; });
    return sorted;
}

void addTexts(FoldedTexts& texts, const Asset& asset, const std::stop_token& stop) {
    for (const SearchedText& each : searchedTexts(asset)) {
        texts.addText(each.text, stop);
    }
    texts.endRecord();
}

} // namespace

ReleaseIndex::ReleaseIndex(std::shared_ptr<const OpenMapRelease> release,
                           TextLocale locale,
                           const std::stop_token& stop)
    : m_release(std::move(release)), m_locale(std::move(locale)),
      m_kinds(vasker::kinds(*m_release, stop)),
      m_nameOrder(nameOrderOf(m_release->assets, m_locale, stop)), m_texts(m_locale) {
    const std::vector<Asset>& assets = m_release->assets;

    std::unordered_map<std::string_view, std::uint32_t> indexOfKind;
    for (const std::string& kind : m_kinds) {
        indexOfKind.emplace(kind, static_cast<std::uint32_t>(indexOfKind.size()));
    }
    m_kindIndices.reserve(assets.size());
    for (const AssetIndex each : m_nameOrder) {
        m_kindIndices.push_back(indexOfKind.at(assets[each].kind));
        addTexts(m_texts, assets[each], stop);
    }
    m_texts.finish();
    m_ranks.resize(assets.size());
    for (std::size_t rank = 0; rank < m_nameOrder.size(); ++rank) {
        m_ranks[m_nameOrder[rank]] = static_cast<std::uint32_t>(rank);
    }

    m_byID.reserve(assets.size());
    for (const Asset& asset : assets) {
        m_byID.emplace(asset.id, static_cast<AssetIndex>(&asset - assets.data()));
    }
}

std::vector<std::uint32_t> ReleaseIndex::matchingRanks(std::string_view query) const {
    if (!query.empty()) {
        return m_texts.recordsWith(query);
    }
    std::vector<std::uint32_t> all(m_nameOrder.size());
    std::iota(all.begin(), all.end(), 0U);
    return all;
}

std::vector<std::size_t> ReleaseIndex::counts(std::span<const std::uint32_t> ranks) const {
    std::vector<std::size_t> counts(m_kinds.size());
    for (const std::uint32_t rank : ranks) {
        ++counts[m_kindIndices[rank]];
    }
    return counts;
}

std::vector<AssetIndex> ReleaseIndex::ofKind(std::vector<std::uint32_t> ranks,
                                             std::string_view kind) const {
    if (kind != "all") {
        const auto index =
            static_cast<std::uint32_t>(std::ranges::find(m_kinds, kind) - m_kinds.begin());
        std::erase_if(ranks, [&](std::uint32_t rank) { return m_kindIndices[rank] != index; });
    }
    std::ranges::transform(
        ranks, ranks.begin(), [this](std::uint32_t rank) { return m_nameOrder[rank]; });
    return ranks;
}

std::optional<SearchedText> ReleaseIndex::firstMatch(std::string_view foldedQuery,
                                                     AssetIndex record) const {
    if (foldedQuery.empty()) {
        return std::nullopt;
    }
    const auto text = m_texts.firstTextWith(foldedQuery, m_ranks[record]);
    return text ? std::optional(searchedTexts(m_release->assets[record])[*text]) : std::nullopt;
}

std::optional<AssetIndex> ReleaseIndex::find(std::string_view id) const {
    const auto found = m_byID.find(id);
    return found == m_byID.end() ? std::nullopt : std::optional(found->second);
}

} // namespace vasker
