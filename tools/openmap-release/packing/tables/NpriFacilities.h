#pragma once
// The National Pollutant Release Inventory's facility table and its newer list of positions.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vasker {

struct NpriFacility {
    std::string id; ///< without leading zeros
    int year = 0;   ///< of the last filed report that the table knows of
    std::string name;
    std::string province; ///< in full
    std::optional<std::string> company;
    std::optional<std::string> city;
    std::optional<std::string> landSurvey;
    std::optional<std::string> naics;
    std::string sectorCode; ///< may be empty
    std::optional<std::string> sector;
    std::optional<OpenMapRelease::Position> position;
};

/// Counts cities that say nothing. Throws InputError.
[[nodiscard]] std::vector<NpriFacility> readNpriFacilities(const CsvTable& table, PackTally& tally);

using NpriLocations = std::map<std::string, OpenMapRelease::Position, std::less<>>;

/// Positions by NPRI id without leading zeros; rows without a position are passed over.
/// Throws InputError, also where an id stands twice.
[[nodiscard]] NpriLocations readNpriLocations(const CsvTable& table);

} // namespace vasker
