#pragma once
// What newer tables of the National Pollutant Release Inventory tell of a facility: its last
// report, its nitrogen oxides, the years and the industry of its reports, its key industrial
// sector.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vasker {

/// A row of the table of nitrogen oxides.
struct NpriReport {
    int lastYear = 0; ///< of the report that the table's name and company are from
    std::string name;
    std::string province; ///< in full
    std::optional<std::string> company;
    std::optional<std::string> city;
    std::optional<OpenMapRelease::Position> position;
    std::optional<std::string> nitrogenOxides; ///< in the table's year, "328.35 tonnes"
};

/// By NPRI id without leading zeros.
using NpriReports = std::map<std::string, NpriReport, std::less<>>;

/// `year` is the table's, "2022", which stands in the heading "NOx 2022 (t)". A row with
/// nitrogen oxides reported for that year, whatever its last reporting year says. Counts rows
/// without nitrogen oxides, corrected years and cities that say nothing. Throws InputError.
[[nodiscard]] NpriReports
readNpriReports(const CsvTable& table, std::string_view year, PackTally& tally);

/// A row of the table of reporting years.
struct NpriReportYears {
    int lastYear = 0; ///< with releases
    std::optional<std::string> naics;
};

/// By NPRI id without leading zeros. Throws InputError.
[[nodiscard]] std::map<std::string, NpriReportYears, std::less<>>
readNpriReportYears(const CsvTable& table);

/// Key industrial sector codes, empty where the cell is, by NPRI id without leading zeros. Throws
/// InputError.
[[nodiscard]] std::map<std::string, std::string, std::less<>>
readNpriSectors(const CsvTable& table);

} // namespace vasker
