#pragma once
// Ids of the National Pollutant Release Inventory.

#include <algorithm>
#include <string>

namespace vasker {

/// An id of the inventory without leading zeros, by which its tables are joined.
[[nodiscard]] inline std::string plainNpriId(std::string id) {
    id.erase(0, std::min(id.find_first_not_of('0'), id.size() - 1));
    return id;
}

} // namespace vasker
