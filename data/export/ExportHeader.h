#pragma once
// What an exported file says of itself: which release it is from, and which search chose its
// records.

#include <string>

namespace vasker {

struct ExportHeader {
    std::string releaseID;
    std::string digest; ///< the SHA-256 of the release file, 64 hexadecimal digits
    std::string query;  ///< the search text; empty for none
    std::string filter; ///< the category key, "all" for none
};

} // namespace vasker
