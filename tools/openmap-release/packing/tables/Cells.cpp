#include "tools/openmap-release/packing/tables/Cells.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vasker {
namespace {

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

void removeInvisible(std::string& text) {
    // Soft hyphen, zero-width blank, non-joiner and joiner, word joiner, byte order mark.
    constexpr auto invisible = std::to_array<std::string_view>(
        {"\u00AD", "\u200B", "\u200C", "\u200D", "\u2060", "\uFEFF"});
    for (const std::string_view character : invisible) {
        for (std::size_t place = text.find(character); place != std::string::npos;
             place = text.find(character, place)) {
            text.erase(place, character.size());
        }
    }
}

std::string_view trimmed(std::string_view text) {
    constexpr auto blanks = std::to_array<std::string_view>({" ", "\t", "\r", "\n", "\u00A0"});
    bool isChanged = true;
    while (isChanged) {
        isChanged = false;
        for (const std::string_view blank : blanks) {
            if (text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                isChanged = true;
            }
            if (text.ends_with(blank)) {
                text.remove_suffix(blank.size());
                isChanged = true;
            }
        }
    }
    return text;
}

} // namespace

std::optional<std::string> publishedText(std::string_view cell) {
    std::string visible(cell);
    removeInvisible(visible);
    const std::string_view text = trimmed(visible);
    if (text.empty() || text == "n/a" || text == "N/A" || text == "--") {
        return std::nullopt;
    }
    return std::string(text);
}

std::optional<std::string> groupedNumber(std::string_view text) {
    const std::size_t point = std::min(text.find('.'), text.size());
    std::string whole(text.substr(0, point));
    std::erase(whole, ',');
    std::string_view fraction = point < text.size() ? text.substr(point + 1) : "";
    const bool isNumber = !whole.empty() && std::ranges::all_of(whole, isDigit) &&
                          std::ranges::all_of(fraction, isDigit);
    if (!isNumber || (point < text.size() && fraction.empty())) {
        return std::nullopt;
    }
    for (std::size_t place = whole.size(); place > 3;) {
        place -= 3;
        whole.insert(place, 1, ',');
    }
    while (!fraction.empty() && fraction.back() == '0') {
        fraction.remove_suffix(1);
    }
    return fraction.empty() ? whole : whole + "." + std::string(fraction);
}

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
    if (!std::ranges::all_of(given, isDigit)) {
        refuse(std::string(heading) + " \"" + given + "\" is not a whole number");
    }
    return given;
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
