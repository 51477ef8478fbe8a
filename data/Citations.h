#pragma once
// Which sources of a release its records cite.

#include "data/OpenMapRelease.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vasker {

/// Refers to the sources it was made from, whose ids differ; they must outlive it. Values that
/// stand together mostly cite one source, so that the source cited last is asked first.
class Citations {
  public:
    explicit Citations(const std::vector<OpenMapRelease::Source>& sources);
    Citations(const Citations&) = delete;
    Citations& operator=(const Citations&) = delete;

    /// Whether `id` names a source, which counts as cited from now on.
    [[nodiscard]] bool cite(std::string_view id);

    /// The place in the list of sources of the first one that was never cited.
    [[nodiscard]] std::optional<std::size_t> firstUncited() const;

  private:
    std::unordered_map<std::string_view, std::size_t> m_places;
    std::vector<bool> m_isCited;
    const std::pair<const std::string_view, std::size_t>* m_last = nullptr;
};

} // namespace vasker
