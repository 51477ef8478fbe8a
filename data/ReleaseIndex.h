#pragma once
// A release prepared for views: its records in name order, its texts folded for search, its kinds.

#include "data/OpenMapRelease.h"
#include "data/SearchedTexts.h"
#include "data/text/FoldedTexts.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vasker {

/// An index in OpenMapRelease::assets.
using AssetIndex = std::uint32_t;

/// Returns what the definitions in Classification.h return, in less time. Immutable; any thread.
class ReleaseIndex {
  public:
    /// Throws Cancelled if `stop` asks to stop.
    ReleaseIndex(std::shared_ptr<const OpenMapRelease> release,
                 TextLocale locale,
                 const std::stop_token& stop = {});

    [[nodiscard]] const OpenMapRelease& release() const noexcept { return *m_release; }
    [[nodiscard]] const TextLocale& locale() const noexcept { return m_locale; }

    /// Returns the ranks of the records that match `query`, ascending. A rank is a place in name
    /// order; records whose names are equal in that order are in file order.
    [[nodiscard]] std::vector<std::uint32_t> matchingRanks(std::string_view query) const;

    /// Returns the records of `ranks` that are of `kind` ("all" stands for every kind), in the same
    /// order.
    [[nodiscard]] std::vector<AssetIndex> ofKind(std::vector<std::uint32_t> ranks,
                                                 std::string_view kind) const;

    /// Returns for each of kinds() how many records of `ranks` are of this kind.
    [[nodiscard]] std::vector<std::size_t> counts(std::span<const std::uint32_t> ranks) const;

    /// Returns the records that match `query` and are of `kind`, in name order.
    [[nodiscard]] std::vector<AssetIndex> filtered(std::string_view query,
                                                   std::string_view kind) const {
        return ofKind(matchingRanks(query), kind);
    }

    /// Returns the first text of `record` that contains `foldedQuery`, a query after folded(). The
    /// text lives as long as the release. Nothing where filtered() leaves the record out, and for
    /// the empty query, which every record matches and none of its texts more than another.
    [[nodiscard]] std::optional<SearchedText> firstMatch(std::string_view foldedQuery,
                                                         AssetIndex record) const;

    /// Returns the distinct kinds in code-point order.
    [[nodiscard]] const std::vector<std::string>& kinds() const noexcept { return m_kinds; }

    /// Returns the first record with exactly this id, or nothing.
    [[nodiscard]] std::optional<AssetIndex> find(std::string_view id) const;

    /// Returns the texts that queries are searched in; their records are in name order.
    [[nodiscard]] const FoldedTexts& texts() const noexcept { return m_texts; }

  private:
    std::shared_ptr<const OpenMapRelease> m_release; ///< owns the texts that m_byID refers to
    TextLocale m_locale;
    std::vector<std::string> m_kinds;
    std::vector<AssetIndex> m_nameOrder;      ///< by rank
    std::vector<std::uint32_t> m_ranks;       ///< by AssetIndex
    std::vector<std::uint32_t> m_kindIndices; ///< by rank; indices in m_kinds
    FoldedTexts m_texts;                      ///< by rank
    std::unordered_map<std::string_view, AssetIndex> m_byID;
};

} // namespace vasker
