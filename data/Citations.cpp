#include "data/Citations.h"

#include <algorithm>

namespace vasker {

Citations::Citations(const std::vector<OpenMapRelease::Source>& sources)
    : m_isCited(sources.size()) {
    for (const OpenMapRelease::Source& source : sources) {
        m_indices.emplace(source.id, m_indices.size());
    }
}

bool Citations::cite(std::string_view id) {
    if (m_last != nullptr && m_last->first == id) {
        return true;
    }
    const auto found = m_indices.find(id);
    if (found == m_indices.end()) {
        return false;
    }
    m_last = &*found;
    m_isCited[found->second] = true;
    return true;
}

std::optional<std::size_t> Citations::firstUncited() const {
    const auto found = std::ranges::find(m_isCited, false);
    return found == m_isCited.end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(found - m_isCited.begin()));
}

} // namespace vasker
