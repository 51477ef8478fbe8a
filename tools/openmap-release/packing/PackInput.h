#pragma once
// The files that a release is made of, as they were read.

#include "tools/openmap-release/packing/Description.h"

#include <map>
#include <string>

namespace vasker {

struct PackInput {
    Description description;
    std::map<TableRole, std::string> tables; ///< the bytes of each table that is described
    /// For each table of pipelines the GeoJSON of its routes, by project id.
    std::map<TableRole, std::map<std::string, std::string, std::less<>>> routes;
};

/// The files of the folder `folder` that the description in the file `description` names. Throws
/// FileError for one that cannot be read, and InputError for one that is too large and for a
/// description that cannot be understood.
[[nodiscard]] PackInput readPackInput(const std::string& folder, const std::string& description);

} // namespace vasker
