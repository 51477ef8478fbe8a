#include "tools/openmap-release/packing/tables/Ghgrp.h"

#include "tools/openmap-release/packing/tables/Npri.h"
#include "tools/openmap-release/packing/tables/Provinces.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

namespace vasker {
namespace {

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

/// The digits behind "CPV=" in the address of the industry's definition.
std::string naicsCode(const RowReader& row) {
    const std::string address = row.requiredText("Industry classification link");
    constexpr std::string_view key = "CPV=";
    const std::size_t place = address.find(key);
    if (place == std::string::npos) {
        row.refuse("the industry classification link has no code");
    }
    const auto first = address.begin() + static_cast<std::ptrdiff_t>(place + key.size());
    const std::string code(first, std::find_if_not(first, address.end(), isDigit));
    if (code.empty()) {
        row.refuse("the industry classification link has no code");
    }
    return code;
}

/// The number as published, blanks between thousands included, with the unit that the table gives
/// in parentheses.
std::string emissions(const RowReader& row) {
    const std::string number = row.requiredText("Total emissions");
    std::string digits = number;
    std::erase(digits, ' ');
    if (!groupedNumber(digits)) {
        row.refuse("Total emissions \"" + number + "\" is not a number");
    }
    const std::string units = row.requiredText("Units");
    const std::size_t open = units.find('(');
    const std::size_t close = units.find(')', open);
    if (open == std::string::npos || close == std::string::npos) {
        row.refuse("Units \"" + units + "\" have no short form in parentheses");
    }
    return number + " " + units.substr(open + 1, close - open - 1);
}

GhgrpFacility readFacility(const RowReader& row) {
    GhgrpFacility facility;
    facility.id = "G" + row.requiredDigits("Facility ID");
    facility.year = row.requiredDigits("Report year");
    facility.name = row.requiredText("Facility name");
    facility.province = row.requiredText("Province");
    if (!isProvince(facility.province)) {
        row.refuse("\"" + facility.province + "\" is no province");
    }
    facility.company = row.text("Company name");
    facility.naics = naicsCode(row);
    facility.emissions = emissions(row);
    facility.industry = row.text("Industry classification");
    facility.city = row.text("City");
    facility.page = row.text("Facility information");
    facility.position = row.position("Latitude", "Longitude");
    return facility;
}

} // namespace

std::vector<GhgrpFacility> readGhgrpFacilities(const CsvTable& table) {
    table.requireColumns({"Facility ID",
                          "Facility name",
                          "Company name",
                          "City",
                          "Province",
                          "Latitude",
                          "Longitude",
                          "Total emissions",
                          "Units",
                          "Report year",
                          "Industry classification",
                          "Industry classification link",
                          "Facility information"});
    std::vector<GhgrpFacility> facilities;
    std::set<std::string> ids;
    for (const CsvTable::Row& cells : table.rows()) {
        facilities.push_back(readFacility(RowReader(table, cells)));
        if (!ids.insert(facilities.back().id).second) {
            table.refuse(cells, "Facility ID " + facilities.back().id + " stands twice");
        }
    }
    return facilities;
}

bool isEnergyIndustry(std::string_view naics) {
    constexpr auto beginnings =
        std::to_array<std::string_view>({"2111", "213119", "2212", "3241", "486", "412110"});
    return std::ranges::any_of(
        beginnings, [&](std::string_view beginning) { return naics.starts_with(beginning); });
}

std::map<std::string, FacilityLink, std::less<>> readFacilityLinks(const CsvTable& table) {
    table.requireColumns({"GHG ID No.", "Reference Year", "Facility NPRI ID"});
    std::map<std::string, FacilityLink, std::less<>> links;
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = row.requiredText("GHG ID No.");
        const std::string yearText = row.requiredDigits("Reference Year");
        int year = 0;
        std::from_chars(yearText.data(), yearText.data() + yearText.size(), year);
        if (!row.text("Facility NPRI ID")) {
            continue;
        }
        const std::string npriId = plainNpriId(row.requiredDigits("Facility NPRI ID"));
        const auto [place, isNew] = links.try_emplace(id, FacilityLink{npriId, year, false});
        if (isNew) {
            continue;
        }
        FacilityLink& link = place->second;
        const bool differs = link.npriId != npriId;
        if (differs && link.year == year) {
            row.refuse(id + " is two NPRI facilities in " + yearText);
        }
        link.hasChanged = link.hasChanged || differs;
        if (year > link.year) {
            link.npriId = npriId;
            link.year = year;
        }
    }
    return links;
}

} // namespace vasker
