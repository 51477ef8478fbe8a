#include "tools/openmap-release/packing/tables/GhgrpHistory.h"

#include "tools/openmap-release/packing/tables/NpriId.h"
#include "tools/openmap-release/packing/tables/RowReader.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vasker {

std::map<std::string, GhgrpTotals, std::less<>> readGhgrpTotals(const CsvTable& table) {
    std::map<std::string, GhgrpTotals, std::less<>> totals;
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = row.requiredText("GHGRP_ID");
        const int year = row.requiredYear("Year");
        const auto total = row.quantity("Total emissions (t CO2e)", "t CO2 eq");
        if (total && !totals[id].emplace(year, *total).second) {
            row.refuse("GHGRP_ID " + id + " stands twice for " + std::to_string(year));
        }
    }
    return totals;
}

std::map<std::string, GhgrpGases, std::less<>> readGhgrpGases(const CsvTable& table,
                                                              PackTally& tally) {
    std::map<std::string, GhgrpGases, std::less<>> gases;
    std::set<std::pair<std::string, int>> known;
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = row.requiredText("GHGRP_ID");
        const int year = row.requiredYear("Year");
        if (!known.emplace(id, year).second) {
            row.refuse("GHGRP_ID " + id + " stands twice for " + std::to_string(year));
        }
        GhgrpGases& latest = gases[id];
        if (latest.year != 0) {
            tally.add(TableRole::ghgrpGases, PackStep::dropped, "rows of earlier years");
        }
        if (year > latest.year) {
            latest = {year,
                      row.quantity("CO2 (tonnes)", "tonnes"),
                      row.quantity("CH4 (tonnes)", "tonnes"),
                      row.quantity("N2O (tonnes)", "tonnes")};
        }
    }
    return gases;
}

std::map<std::string, PetrinexCodes, std::less<>> readPetrinexCodes(const CsvTable& table) {
    std::map<std::string, PetrinexCodes, std::less<>> facilities;
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        PetrinexCodes& facility = facilities[row.requiredText("GHGRP_ID")];
        facility.codes.push_back(row.requiredText("Petrinex facility ID"));
        std::string type = row.requiredText("Type letters");
        if (std::ranges::find(facility.types, type) == facility.types.end()) {
            facility.types.push_back(std::move(type));
        }
    }
    return facilities;
}

std::map<std::string, FacilityLink, std::less<>> readFacilityLinks(const CsvTable& table) {
    std::map<std::string, FacilityLink, std::less<>> links;
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = row.requiredText("GHG ID No.");
        const int year = row.requiredYear("Reference Year");
        if (!row.text("Facility NPRI ID")) {
            continue;
        }
        const std::string npriId = plainNpriId(row.requiredDigits("Facility NPRI ID"));
        const auto [place, isNew] = links.try_emplace(id, FacilityLink{npriId, year, false});
        FacilityLink& link = place->second;
        const bool differs = link.npriId != npriId;
        if (differs && link.year == year) {
            row.refuse(id + " is two NPRI facilities in " + std::to_string(year));
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
