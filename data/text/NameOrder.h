#pragma once
// The order of names in lists.

#include "data/text/TextLocale.h"

#include <memory>
#include <string>
#include <string_view>

namespace vasker {

/// Compares by the rules of a locale. Runs of digits are ordered by their value (Plant 9 before
/// Plant 10); letter case and width matter only between names that are equal otherwise. Combining
/// marks that follow 30 others do not matter. Any thread.
class NameOrder {
  public:
    explicit NameOrder(const TextLocale& locale);
    NameOrder(const NameOrder&) = delete;
    NameOrder& operator=(const NameOrder&) = delete;
    ~NameOrder();

    /// Returns whether `a` is ordered before `b`. Different names may be equal in this order.
    [[nodiscard]] bool precedes(std::string_view a, std::string_view b) const;

    /// Returns bytes whose order is that of precedes().
    [[nodiscard]] std::string sortKey(std::string_view name) const;

  private:
    struct Collator;
    std::unique_ptr<const Collator> m_collator;
};

} // namespace vasker
