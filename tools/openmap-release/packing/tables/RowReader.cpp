#include "tools/openmap-release/packing/tables/RowReader.h"

#include "tools/openmap-release/packing/tables/Provinces.h"

#include <charconv>
#include <cmath>

namespace vasker {

std::optional<std::string> RowReader::text(std::string_view heading) const {
    return publishedText(m_table.cell(m_row, heading));
}

std::string RowReader::requiredText(std::string_view heading) const {
    std::optional<std::string> given = text(heading);
    if (!given) {
        refuse("nothing stands under \"" + std::string(heading) + "\"");
    }
    return std::move(*given);
}

std::string RowReader::requiredDigits(std::string_view heading) const {
    std::string given = requiredText(heading);
    if (given.find_first_not_of("0123456789") != std::string::npos) {
        refuse(std::string(heading) + " \"" + given + "\" is not a whole number");
    }
    return given;
}

int RowReader::requiredYear(std::string_view heading) const {
    const std::string digits = requiredDigits(heading);
    int year = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), year);
    if (error != std::errc() || year < 1900 || year > 2999) {
        refuse(std::string(heading) + " \"" + digits + "\" is not a year");
    }
    return year;
}

std::string RowReader::requiredProvince(std::string_view heading) const {
    const std::string given = requiredText(heading);
    const std::optional<std::string_view> name =
        isProvince(given) ? std::optional<std::string_view>(given) : provinceNamed(given);
    if (!name) {
        refuse("\"" + given + "\" is no province");
    }
    return std::string(*name);
}

std::optional<std::string>
RowReader::place(std::string_view heading, TableRole table, PackTally& tally) const {
    std::optional<std::string> name = placeName(m_table.cell(m_row, heading));
    if (!name && text(heading)) {
        tally.add(table, PackStep::dropped, "cities that name no place, such as \"na\"");
    }
    return name;
}

std::optional<std::string> RowReader::quantity(std::string_view heading,
                                               std::string_view unit) const {
    const std::optional<std::string> given = text(heading);
    if (!given) {
        return std::nullopt;
    }
    std::optional<std::string> number = groupedNumber(*given);
    if (!number) {
        refuse(std::string(heading) + " \"" + *given + "\" is not a number");
    }
    return unit.empty() ? *number : *number + " " + std::string(unit);
}

std::optional<std::string>
RowReader::joined(std::initializer_list<std::string_view> headings) const {
    std::string list;
    std::string last;
    for (const std::string_view heading : headings) {
        const std::optional<std::string> given = text(heading);
        if (given && *given != last) {
            list += (list.empty() ? "" : ", ") + *given;
            last = *given;
        }
    }
    return list.empty() ? std::nullopt : std::optional(list);
}

std::optional<double> RowReader::coordinate(std::string_view heading, double bound) const {
    const std::optional<std::string> given = text(heading);
    if (!given) {
        return std::nullopt;
    }
    double degrees = 0;
    const char* end = given->data() + given->size();
    const auto [stopped, error] = std::from_chars(given->data(), end, degrees);
    if (error != std::errc() || stopped != end || !std::isfinite(degrees)) {
        refuse(std::string(heading) + " \"" + *given + "\" is not a number");
    }
    if (std::abs(degrees) > bound) {
        refuse(std::string(heading) + " " + *given + " is off the globe");
    }
    return degrees;
}

std::optional<OpenMapRelease::Position>
RowReader::position(std::string_view latitudeHeading, std::string_view longitudeHeading) const {
    const std::optional<double> latitude = coordinate(latitudeHeading, 90);
    const std::optional<double> longitude = coordinate(longitudeHeading, 180);
    if (!latitude || !longitude || (*latitude == 0 && *longitude == 0)) {
        return std::nullopt;
    }
    return OpenMapRelease::Position{*longitude, *latitude};
}

} // namespace vasker
