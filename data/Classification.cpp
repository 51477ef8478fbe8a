#include "data/Classification.h"

#include "data/Cancelled.h"
#include "data/SearchedTexts.h"
#include "data/text/Capitalization.h"
#include "data/text/CaseFolding.h"
#include "data/text/CodePointOrder.h"
#include "data/text/NameOrder.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>

namespace vasker {

namespace {

using Label = std::pair<std::string_view, std::string_view>; // key, label

constexpr std::array<Label, 8> categoryLabels = {{{"lng_plant", "LNG facility"},
                                                  {"gas_plant", "Gas plant"},
                                                  {"straddle_plant", "Straddle plant"},
                                                  {"fractionation", "Fractionation plant"},
                                                  {"oil_sands_plant", "Oil sands plant"},
                                                  {"oil_sands_insitu", "In-situ oil sands"},
                                                  {"processing", "Reporting facility"},
                                                  {"other", "Unclassified facility"}}};

constexpr std::array<Label, 5> shortNames = {{{"npri-facility-locations-2024", "NPRI"},
                                              {"ghgrp-facility-emissions", "GHGRP"},
                                              {"gem-goit-pipelines", "GEM oil/NGL pipelines"},
                                              {"gem-ggit-pipelines", "GEM gas pipelines"},
                                              {"gem-ggit-lng-terminals", "GEM LNG terminals"}}};

} // namespace

std::string OpenMapRelease::Asset::categoryLabel(std::string_view kind) {
    const auto* const found = std::ranges::find(categoryLabels, kind, &Label::first);
    return found == categoryLabels.end() ? capitalized(kind) : std::string(found->second);
}

std::string OpenMapRelease::Asset::category() const {
    return categoryLabel(kind);
}

std::string_view OpenMapRelease::Source::shortName() const noexcept {
    const auto* const found = std::ranges::find(shortNames, dataset, &Label::first);
    return found == shortNames.end() ? std::string_view(publisher) : found->second;
}

bool OpenMapRelease::Asset::matches(std::string_view query, const TextLocale& locale) const {
    if (query.empty()) {
        return true;
    }
    const std::string foldedQuery = folded(query, locale);
    const auto contains = [&](std::string_view text) {
        return containsFolded(folded(text, locale), foldedQuery);
    };
    return std::ranges::any_of(searchedTexts(*this), contains, &SearchedText::text);
}

std::vector<AssetIndex> filtered(const OpenMapRelease& release,
                                 std::string_view query,
                                 std::string_view kind,
                                 const TextLocale& locale) {
    std::vector<AssetIndex> kept;
    for (std::size_t at = 0; at < release.assets.size(); ++at) {
        const OpenMapRelease::Asset& asset = release.assets[at];
        if ((kind == "all" || asset.kind == kind) && asset.matches(query, locale)) {
            kept.push_back(static_cast<AssetIndex>(at));
        }
    }
    const NameOrder order(locale);
    std::ranges::stable_sort(kept, [&](AssetIndex a, AssetIndex b) {
        return order.precedes(release.assets[a].name, release.assets[b].name);
    });
    return kept;
}

std::vector<std::string> kinds(const OpenMapRelease& release, const std::stop_token& stop) {
    std::vector<std::pair<std::string, std::string_view>> distinct; // sort key, kind
    std::unordered_set<std::string_view> seen;
    for (const OpenMapRelease::Asset& asset : release.assets) {
        throwIfCancelled(stop);
        if (seen.insert(asset.kind).second) {
            distinct.emplace_back(codePointSortKey(asset.kind), asset.kind);
        }
    }
    std::ranges::stable_sort(
        distinct, {}, [](const auto& each) -> auto& { return each.first; });
    std::vector<std::string> sorted(distinct.size());
    std::ranges::transform(
        distinct, sorted.begin(), [](const auto& each) { return std::string(each.second); });
    return sorted;
}

} // namespace vasker
