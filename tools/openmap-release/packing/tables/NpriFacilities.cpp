#include "tools/openmap-release/packing/tables/NpriFacilities.h"

#include "tools/openmap-release/packing/tables/NpriId.h"
#include "tools/openmap-release/packing/tables/UniqueIds.h"

namespace vasker {
namespace {

NpriFacility readNpriFacility(const RowReader& row, PackTally& tally) {
    NpriFacility facility;
    facility.id = plainNpriId(row.requiredDigits("NPRI ID"));
    facility.year = row.requiredYear("Year of last filed report");
    facility.name = row.requiredText("Facility Name");
    facility.province = row.requiredProvince("Province");
    facility.company = row.text("Company Name");
    facility.city = row.place("City", TableRole::npriFacilities, tally);
    facility.landSurvey = row.text("Physical Land Survey Description");
    facility.naics = row.text("NAICS");
    facility.sectorCode = row.text("Key Industrial Sector Code").value_or("");
    facility.sector = row.text("Key Industrial Sector (English)");
    facility.position = row.position("Latitude", "Longitude");
    return facility;
}

} // namespace

std::vector<NpriFacility> readNpriFacilities(const CsvTable& table, PackTally& tally) {
    return readUnique(
        table, "NPRI ID", [&](const RowReader& row) { return readNpriFacility(row, tally); });
}

NpriLocations readNpriLocations(const CsvTable& table) {
    NpriLocations positions;
    UniqueIds ids("NPRI_id");
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = plainNpriId(row.requiredDigits("NPRI_id"));
        ids.take(row, id);
        if (const auto position = row.position("latitude", "longitude")) {
            positions.emplace(id, *position);
        }
    }
    return positions;
}

} // namespace vasker
