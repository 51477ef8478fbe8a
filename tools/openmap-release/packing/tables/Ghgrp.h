#pragma once
// The Greenhouse Gas Reporting Program's facility table, and what its history says about which of
// its facilities is which in the National Pollutant Release Inventory.

#include "tools/openmap-release/packing/tables/Cells.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
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

/// Throws InputError.
[[nodiscard]] std::vector<GhgrpFacility> readGhgrpFacilities(const CsvTable& table);

/// Whether a NAICS code is of oil, gas, their refining, transport, distribution or wholesale.
[[nodiscard]] bool isEnergyIndustry(std::string_view naics);

struct FacilityLink {
    std::string npriId;      ///< without leading zeros
    int year = 0;            ///< the reference year that says so
    bool hasChanged = false; ///< earlier years name another NPRI id
};

/// The NPRI facility of a GHGRP id in the most recent year that names one. Throws InputError.
[[nodiscard]] std::map<std::string, FacilityLink, std::less<>>
readFacilityLinks(const CsvTable& table);

} // namespace vasker
