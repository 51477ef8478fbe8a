#pragma once
// Which sources of a release are cited by its records and facts.

#include "data/OpenMapRelease.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vasker {

/// Refers to the sources that it was made from; they must outlive it and have different ids.
class Citations {
  public:
    explicit Citations(const std::vector<OpenMapRelease::Source>& sources);
    Citations(const Citations&) = delete;
    Citations& operator=(const Citations&) = delete;

    /// Returns whether a source has this id; if so, it is cited from now on.
    [[nodiscard]] bool cite(std::string_view id);

    /// Returns the index of the first source that is not cited.
    [[nodiscard]] std::optional<std::size_t> firstUncited() const;

  private:
    std::unordered_map<std::string_view, std::size_t> m_indices;
    std::vector<bool> m_isCited;
    /// Neighbouring values mostly cite the same source, which is therefore compared first.
    const std::pair<const std::string_view, std::size_t>* m_last = nullptr;
};

} // namespace vasker
