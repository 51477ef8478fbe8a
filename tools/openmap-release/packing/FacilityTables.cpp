#include "tools/openmap-release/packing/FacilityTables.h"

#include <algorithm>

namespace vasker {
namespace {

using enum TableRole;

/// What `read` makes of the table for `role`; an empty value where there is no such table.
template <typename Read>
auto readOptional(const PackTables& tables, TableRole role, Read read)
    -> decltype(read(*tables.find(role))) {
    const CsvTable* table = tables.find(role);
    return table == nullptr ? decltype(read(*table)){} : read(*table);
}

/// The latest year that a value of `map` names.
template <typename Map, typename Year>
int latest(const Map& map, Year year) {
    int last = 0;
    for (const auto& [id, value] : map) {
        last = std::max(last, value.*year);
    }
    return last;
}

} // namespace

FacilityTables
readFacilityTables(const PackTables& tables, const Citations& citations, PackTally& tally) {
    FacilityTables read;
    read.npri = readNpriFacilities(*tables.find(npriFacilities), tally);
    read.locations = readNpriLocations(*tables.find(npriLocations));
    read.reports = readOptional(tables, npriReports, [&](const CsvTable& table) {
        return readNpriReports(table, citations.at(npriReports).period, tally);
    });
    read.years = readOptional(tables, npriReportYears, readNpriReportYears);
    read.sectors = readOptional(tables, npriSectors, readNpriSectors);
    read.releases = readOptional(tables, npriReleases, [&](const CsvTable& table) {
        return readNpriReleases(table, tally);
    });
    read.ghgrp = readGhgrpFacilities(*tables.find(ghgrpFacilities), tally);
    read.totals = readOptional(tables, ghgrpTotals, readGhgrpTotals);
    read.gases = readOptional(
        tables, ghgrpGases, [&](const CsvTable& table) { return readGhgrpGases(table, tally); });
    read.petrinex = readOptional(tables, ghgrpPetrinex, readPetrinexCodes);
    read.links = readOptional(tables, ghgrpLinks, readFacilityLinks);
    read.reportsUntil = latest(read.reports, &NpriReport::lastYear);
    read.yearsUntil = latest(read.years, &NpriReportYears::lastYear);
    read.releasesUntil = latest(read.releases, &NpriReleases::year);
    return read;
}

} // namespace vasker
