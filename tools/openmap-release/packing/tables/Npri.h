#pragma once
// The National Pollutant Release Inventory's facility table and its newer list of positions.

#include "tools/openmap-release/packing/tables/Cells.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vasker {

struct NpriFacility {
    std::string id;   ///< without leading zeros
    std::string year; ///< of the last filed report
    std::string name;
    std::string province; ///< in full
    std::optional<std::string> company;
    std::string naics;      ///< may be empty
    std::string sectorCode; ///< may be empty
    std::optional<OpenMapRelease::Position> position;
    std::vector<ReportedFact> facts;
};

/// Throws InputError.
[[nodiscard]] std::vector<NpriFacility> readNpriFacilities(const CsvTable& table);

/// Positions by NPRI id without leading zeros; rows without a position are passed over.
/// Throws InputError, also where an id stands twice.
[[nodiscard]] std::map<std::string, OpenMapRelease::Position, std::less<>>
readNpriLocations(const CsvTable& table);

/// `id` without leading zeros.
[[nodiscard]] std::string plainNpriId(std::string id);

} // namespace vasker
