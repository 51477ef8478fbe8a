#pragma once
// What the tables of the two federal programs say, by facility.

#include "tools/openmap-release/packing/Citations.h"
#include "tools/openmap-release/packing/PackTables.h"
#include "tools/openmap-release/packing/tables/GhgrpFacilities.h"
#include "tools/openmap-release/packing/tables/GhgrpHistory.h"
#include "tools/openmap-release/packing/tables/NpriFacilities.h"
#include "tools/openmap-release/packing/tables/NpriReleases.h"
#include "tools/openmap-release/packing/tables/NpriReports.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vasker {

/// A table that is not described is empty.
struct FacilityTables {
    template <typename Value>
    using ById = std::map<std::string, Value, std::less<>>;

    std::vector<NpriFacility> npri;
    NpriLocations locations;
    NpriReports reports;
    ById<NpriReportYears> years;
    ById<std::string> sectors; ///< codes
    ById<NpriReleases> releases;
    std::vector<GhgrpFacility> ghgrp;
    ById<GhgrpTotals> totals;
    ById<GhgrpGases> gases;
    ById<PetrinexCodes> petrinex;
    ById<FacilityLink> links;

    /// The last year that any row of the table names; 0 for an empty one.
    int reportsUntil = 0;
    int yearsUntil = 0;
    int releasesUntil = 0;
};

/// Counts what is left out of each table. Throws InputError.
[[nodiscard]] FacilityTables
readFacilityTables(const PackTables& tables, const Citations& citations, PackTally& tally);

} // namespace vasker
