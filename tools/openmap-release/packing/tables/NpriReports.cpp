#include "tools/openmap-release/packing/tables/NpriReports.h"

#include "tools/openmap-release/packing/tables/NpriId.h"
#include "tools/openmap-release/packing/tables/UniqueIds.h"

#include <charconv>

namespace vasker {
namespace {

/// A map of what `read` makes of each row, by NPRI id.
template <typename Value, typename Read>
std::map<std::string, Value, std::less<>> readById(const CsvTable& table, Read read) {
    std::map<std::string, Value, std::less<>> values;
    UniqueIds ids("NPRI_ID");
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = plainNpriId(row.requiredDigits("NPRI_ID"));
        ids.take(row, id);
        values.emplace(id, read(row));
    }
    return values;
}

} // namespace

NpriReports readNpriReports(const CsvTable& table, std::string_view year, PackTally& tally) {
    const std::string oxides = "NOx " + std::string(year) + " (t)";
    int reportingYear = 0;
    std::from_chars(year.data(), year.data() + year.size(), reportingYear);
    return readById<NpriReport>(table, [&](const RowReader& row) {
        NpriReport report;
        report.lastYear = row.requiredYear("Last reporting year");
        report.name = row.requiredText("Facility name");
        report.province = row.requiredProvince("Province");
        report.company = row.text("Company name");
        report.city = row.place("City", TableRole::npriReports, tally);
        report.position = row.position("Latitude", "Longitude");
        report.nitrogenOxides = row.quantity(oxides, "tonnes");
        if (!report.nitrogenOxides) {
            tally.add(TableRole::npriReports,
                      PackStep::noted,
                      "rows without nitrogen oxides, which make no such fact");
        } else if (report.lastYear < reportingYear) {
            report.lastYear = reportingYear;
            tally.add(TableRole::npriReports,
                      PackStep::corrected,
                      "last reports that are older than the nitrogen oxides in the same row",
                      row.requiredText("NPRI_ID"));
        }
        return report;
    });
}

std::map<std::string, NpriReportYears, std::less<>> readNpriReportYears(const CsvTable& table) {
    return readById<NpriReportYears>(table, [](const RowReader& row) {
        return NpriReportYears{row.requiredYear("Last year with releases"), row.text("NAICS")};
    });
}

std::map<std::string, std::string, std::less<>> readNpriSectors(const CsvTable& table) {
    return readById<std::string>(table, [](const RowReader& row) {
        return row.text("Key industrial sector code").value_or("");
    });
}

} // namespace vasker
