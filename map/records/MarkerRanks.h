#pragma once
// Which records come first where their markers crowd: kinds with an icon of their own, then rarer
// kinds. Made once, in the load task. Immutable; any thread.

#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vasker {

class MarkerRanks {
  public:
    /// `release` is not kept.
    explicit MarkerRanks(const OpenMapRelease& release);

    /// The lower it is, the earlier the record comes; records of one kind have the same.
    [[nodiscard]] std::size_t rank(AssetIndex asset) const { return m_ranks[asset]; }
    /// Whether records of that rank are of kinds without an icon of their own.
    [[nodiscard]] bool isQuiet(std::size_t rank) const { return rank >= m_firstQuiet; }
    /// How many ranks there are.
    [[nodiscard]] std::size_t count() const noexcept { return m_count; }

  private:
    std::vector<std::uint32_t> m_ranks; ///< by AssetIndex
    std::size_t m_firstQuiet = 0;
    std::size_t m_count = 0;
};

} // namespace vasker
