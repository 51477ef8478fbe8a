#pragma once
// Facilities of the two federal programs as records of a release. Each value keeps the source and
// the period it comes from.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/Citations.h"
#include "tools/openmap-release/packing/KindRules.h"
#include "tools/openmap-release/packing/LastReport.h"
#include "tools/openmap-release/packing/tables/GhgrpFacilities.h"
#include "tools/openmap-release/packing/tables/GhgrpHistory.h"
#include "tools/openmap-release/packing/tables/NpriFacilities.h"
#include "tools/openmap-release/packing/tables/NpriReleases.h"
#include "tools/openmap-release/packing/tables/NpriReports.h"

#include <optional>
#include <string>
#include <vector>

namespace vasker {

/// What the tables of the Greenhouse Gas Reporting Program tell of a facility; a null pointer where
/// a table does not have it.
struct GhgrpParts {
    std::string id;                          ///< "G10008"
    const GhgrpFacility* facility = nullptr; ///< the row of the facility table
    const GhgrpTotals* totals = nullptr;
    const GhgrpGases* gases = nullptr;
    const PetrinexCodes* petrinex = nullptr;
};

/// What the tables of the National Pollutant Release Inventory tell of a facility; a null pointer
/// where a table does not have it.
struct NpriParts {
    NpriFacility facility; ///< the row of the facility table, or made of a report
    TableRole table = TableRole::npriFacilities; ///< where `facility` is from: that or npriReports
    TableRole placedBy = TableRole::npriFacilities; ///< which of the tables has its position
    OpenMapRelease::Position position{};
    const NpriReport* report = nullptr;
    const NpriReportYears* years = nullptr;
    const NpriReleases* releases = nullptr;
    LastReport last;
    std::vector<GhgrpParts> ghgrp; ///< the facilities of that program that are this one
};

/// The years whose totals are shown, the latest first: from 2017 on, since when facilities from 10
/// kilotonnes on have to report, without the year of the facility's row; where there is none, the
/// latest year.
[[nodiscard]] std::vector<int> shownYears(const GhgrpParts& parts);

/// Whether the last report names another company or facility, and is no older than the facility's
/// row.
[[nodiscard]] bool hasNewCompany(const NpriParts& parts);
[[nodiscard]] bool hasNewName(const NpriParts& parts);

/// The record of an NPRI facility, without its category.
[[nodiscard]] OpenMapRelease::Asset npriRecord(const NpriParts& parts, const Citations& citations);
/// The record of a GHGRP facility with a row and a position, without its category.
[[nodiscard]] OpenMapRelease::Asset ghgrpRecord(const GhgrpParts& parts,
                                                const Citations& citations);

/// What the category follows from; views of `parts`.
[[nodiscard]] FacilityTraits traitsOf(const NpriParts& parts);
[[nodiscard]] FacilityTraits traitsOf(const GhgrpParts& parts);

} // namespace vasker
