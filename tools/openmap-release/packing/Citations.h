#pragma once
// The sources of a release while it is put together: each table's id and period.

#include "tools/openmap-release/packing/TableRole.h"

#include <map>
#include <string>

namespace vasker {

struct Citation {
    std::string sourceID; ///< the SHA-256 of the table's bytes
    std::string period;   ///< of the description; empty where a column says it
};

/// By table; every table that is cited has an entry.
using Citations = std::map<TableRole, Citation>;

} // namespace vasker
