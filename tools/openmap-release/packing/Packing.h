#pragma once
// From the bytes of the dataset files to a release: which rows become records, which are joined,
// which are left out. docs/data.md tells the rules to people.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/PackTally.h"

#include <map>
#include <string>
#include <string_view>

namespace vasker {

/// The dataset files as they were read.
struct PackInput {
    std::string npriFacilities;
    std::string npriLocations;
    std::string ghgrpFacilities;
    std::string ghgrpHistory;
    std::string oilPipelines;
    std::string gasPipelines;
    std::string terminals;
    std::string routeIndex;
    std::map<std::string, std::string, std::less<>> oilRoutes; ///< GeoJSON by project id
    std::map<std::string, std::string, std::less<>> gasRoutes; ///< GeoJSON by project id
};

/// The files of the folder `path`. Throws FileError for one that cannot be read.
[[nodiscard]] PackInput readPackInput(const std::string& path);

struct Packed {
    OpenMapRelease release;
    PackTally tally;
};

/// The same input and time give the same release. `generatedAt` is an internet date-time.
/// Throws InputError for a file that says what cannot be packed.
[[nodiscard]] Packed packRelease(const PackInput& input, const std::string& generatedAt);

} // namespace vasker
