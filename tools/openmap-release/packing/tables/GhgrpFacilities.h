#pragma once
// The Greenhouse Gas Reporting Program's facility table of one year.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <optional>
#include <string>
#include <vector>

namespace vasker {

struct GhgrpFacility {
    std::string id;   ///< "G10008"
    std::string year; ///< reported for
    std::string name;
    std::string province; ///< in full
    std::optional<std::string> company;
    std::string naics;
    std::string emissions; ///< "300.68 kt CO2 eq"
    std::optional<std::string> industry;
    std::optional<std::string> city;
    std::optional<std::string> page; ///< the program's own page on the facility
    std::optional<OpenMapRelease::Position> position;
};

/// Counts cities that say nothing. Throws InputError.
[[nodiscard]] std::vector<GhgrpFacility> readGhgrpFacilities(const CsvTable& table,
                                                             PackTally& tally);

} // namespace vasker
