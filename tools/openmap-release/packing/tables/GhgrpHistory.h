#pragma once
// What other tables of the Greenhouse Gas Reporting Program tell of a facility: totals of earlier
// years, its gases, its registry codes, and which facility of the other inventory it is.

#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vasker {

/// Total emissions by year, "280,922 t CO2 eq".
using GhgrpTotals = std::map<int, std::string>;

/// By GHGRP id. Throws InputError, also where a facility's year stands twice.
[[nodiscard]] std::map<std::string, GhgrpTotals, std::less<>>
readGhgrpTotals(const CsvTable& table);

/// The three gases in a facility's latest year.
struct GhgrpGases {
    int year = 0;
    std::optional<std::string> carbonDioxide; ///< "523,106.97 tonnes"
    std::optional<std::string> methane;
    std::optional<std::string> nitrousOxide;
};

/// By GHGRP id. Counts rows of earlier years. Throws InputError, also where a facility's year
/// stands twice.
[[nodiscard]] std::map<std::string, GhgrpGases, std::less<>> readGhgrpGases(const CsvTable& table,
                                                                            PackTally& tally);

/// The codes of the provinces' registry of oil and gas facilities.
struct PetrinexCodes {
    std::vector<std::string> codes; ///< "ABGP0001482"
    std::vector<std::string> types; ///< "GP", each once
};

/// By GHGRP id. Throws InputError.
[[nodiscard]] std::map<std::string, PetrinexCodes, std::less<>>
readPetrinexCodes(const CsvTable& table);

struct FacilityLink {
    std::string npriId;      ///< without leading zeros
    int year = 0;            ///< the reference year that says so
    bool hasChanged = false; ///< other years name another NPRI id
};

/// The NPRI facility of a GHGRP id in the most recent year that names one. Throws InputError, also
/// where one year names two.
[[nodiscard]] std::map<std::string, FacilityLink, std::less<>>
readFacilityLinks(const CsvTable& table);

} // namespace vasker
