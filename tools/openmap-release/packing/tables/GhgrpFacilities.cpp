#include "tools/openmap-release/packing/tables/GhgrpFacilities.h"

#include "tools/openmap-release/packing/tables/UniqueIds.h"

#include <algorithm>

namespace vasker {
namespace {

/// The digits behind "CPV=" in the address of the industry's definition.
std::string naicsCode(const RowReader& row) {
    const std::string address = row.requiredText("Industry classification link");
    constexpr std::string_view key = "CPV=";
    const std::size_t place = address.find(key);
    if (place == std::string::npos) {
        row.refuse("the industry classification link has no code");
    }
    const auto first = address.begin() + static_cast<std::ptrdiff_t>(place + key.size());
    std::string code(first, std::find_if_not(first, address.end(), isDigit));
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

GhgrpFacility readFacility(const RowReader& row, PackTally& tally) {
    GhgrpFacility facility;
    facility.id = "G" + row.requiredDigits("Facility ID");
    facility.year = row.requiredDigits("Report year");
    facility.name = row.requiredText("Facility name");
    facility.province = row.requiredProvince("Province");
    facility.company = row.text("Company name");
    facility.naics = naicsCode(row);
    facility.emissions = emissions(row);
    facility.industry = row.text("Industry classification");
    facility.city = row.place("City", TableRole::ghgrpFacilities, tally);
    facility.page = row.text("Facility information");
    facility.position = row.position("Latitude", "Longitude");
    return facility;
}

} // namespace

std::vector<GhgrpFacility> readGhgrpFacilities(const CsvTable& table, PackTally& tally) {
    return readUnique(
        table, "Facility ID", [&](const RowReader& row) { return readFacility(row, tally); });
}

} // namespace vasker
