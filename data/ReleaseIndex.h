#pragma once
// A release made ready for views, once, in the load task: name order, folded search texts, kinds.
// Answers exactly as the definitions in Classification.h do. Immutable; any thread.

#include "data/OpenMapRelease.h"
#include "data/text/FoldedTexts.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vasker {

/// A place in OpenMapRelease::assets.
using AssetIndex = std::uint32_t;

class ReleaseIndex {
  public:
    ReleaseIndex(std::shared_ptr<const OpenMapRelease> release, TextLocale locale);

    [[nodiscard]] const OpenMapRelease& release() const noexcept { return *m_release; }
    [[nodiscard]] const TextLocale& locale() const noexcept { return m_locale; }

    /// The records that pass `kind` ("all" passes every record) and `query`, in name order; records
    /// whose names compare as equal keep their file order.
    [[nodiscard]] std::vector<AssetIndex> filtered(std::string_view query,
                                                   std::string_view kind) const;
    /// How many records of each kind pass `query`, in the order of kinds().
    [[nodiscard]] std::vector<std::size_t> counts(std::string_view query) const;
    /// The distinct kinds, in code-point order.
    [[nodiscard]] const std::vector<std::string>& kinds() const noexcept { return m_kinds; }

    /// The first record with exactly this id, or nothing.
    [[nodiscard]] std::optional<AssetIndex> find(std::string_view id) const;

    /// The folded texts that filtered() searches, in name order.
    [[nodiscard]] const FoldedTexts& texts() const noexcept { return m_texts; }

  private:
    /// The places in name order of the records that pass `query`, ascending.
    [[nodiscard]] std::vector<std::uint32_t> ranksOf(std::string_view query) const;

    std::shared_ptr<const OpenMapRelease> m_release; ///< the views below are of its texts
    TextLocale m_locale;
    std::vector<std::string> m_kinds;
    std::vector<AssetIndex> m_nameOrder;
    std::vector<std::uint32_t> m_kindsInNameOrder; ///< places in m_kinds
    FoldedTexts m_texts;                           ///< its records are in name order
    std::unordered_map<std::string_view, AssetIndex> m_byID;
};

} // namespace vasker
