#include "tools/openmap-release/packing/tables/Npri.h"

#include "tools/openmap-release/packing/tables/Provinces.h"

#include <set>

namespace vasker {
namespace {

std::string provinceOf(const RowReader& row, std::string_view heading) {
    const std::string code = row.requiredText(heading);
    const std::optional<std::string_view> name = provinceNamed(code);
    if (!name) {
        row.refuse("\"" + code + "\" is no province");
    }
    return std::string(*name);
}

NpriFacility readFacility(const RowReader& row) {
    NpriFacility facility;
    facility.id = plainNpriId(row.requiredDigits("NPRI ID"));
    facility.year = row.requiredDigits("Year of last filed report");
    facility.name = row.requiredText("Facility Name");
    facility.province = provinceOf(row, "Province");
    facility.company = row.text("Company Name");
    facility.naics = row.text("NAICS").value_or("");
    facility.sectorCode = row.text("Key Industrial Sector Code").value_or("");
    facility.position = row.position("Latitude", "Longitude");

    FactList facts;
    facts.add("NPRI ID", facility.id);
    facts.add("City", row.text("City"));
    facts.add("Land survey", row.text("Physical Land Survey Description"));
    facts.add("Key industrial sector", row.text("Key Industrial Sector (English)"));
    facts.add("Industry code (NAICS)", row.text("NAICS"));
    facility.facts = std::move(facts).take();
    return facility;
}

} // namespace

std::vector<NpriFacility> readNpriFacilities(const CsvTable& table) {
    table.requireColumns({"Year of last filed report",
                          "NPRI ID",
                          "Company Name",
                          "Facility Name",
                          "City",
                          "Province",
                          "Physical Land Survey Description",
                          "Latitude",
                          "Longitude",
                          "NAICS",
                          "Key Industrial Sector Code",
                          "Key Industrial Sector (English)"});
    std::vector<NpriFacility> facilities;
    std::set<std::string> ids;
    for (const CsvTable::Row& cells : table.rows()) {
        facilities.push_back(readFacility(RowReader(table, cells)));
        if (!ids.insert(facilities.back().id).second) {
            table.refuse(cells, "NPRI ID " + facilities.back().id + " stands twice");
        }
    }
    return facilities;
}

std::map<std::string, OpenMapRelease::Position, std::less<>>
readNpriLocations(const CsvTable& table) {
    table.requireColumns({"NPRI_id", "latitude", "longitude"});
    std::map<std::string, OpenMapRelease::Position, std::less<>> positions;
    std::set<std::string> ids;
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = plainNpriId(row.requiredDigits("NPRI_id"));
        if (!ids.insert(id).second) {
            row.refuse("NPRI_id " + id + " stands twice");
        }
        if (const auto position = row.position("latitude", "longitude")) {
            positions.emplace(id, *position);
        }
    }
    return positions;
}

std::string plainNpriId(std::string id) {
    id.erase(0, std::min(id.find_first_not_of('0'), id.size() - 1));
    return id;
}

} // namespace vasker
