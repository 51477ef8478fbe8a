#include "tools/openmap-release/packing/tables/Cells.h"

#include "data/text/CaseFolding.h"
#include "data/text/TextLocale.h"

#include <algorithm>
#include <array>

namespace vasker {
namespace {

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

std::optional<std::string> placeName(std::string_view cell) {
    constexpr auto wordsForNothing =
        std::to_array<std::string_view>({"n/a", "na", "none", "unknown", "-"});
    std::optional<std::string> text = publishedText(cell);
    if (text) {
        const std::string word = folded(*text, TextLocale("en"));
        if (std::ranges::find(wordsForNothing, word) != wordsForNothing.end()) {
            return std::nullopt;
        }
    }
    return text;
}

bool isSameName(std::string_view one, std::string_view other) {
    const auto plain = [](std::string_view name) {
        std::string text = folded(name, TextLocale("en"));
        std::erase(text, '.');
        std::string words;
        for (const char byte : text) {
            if (byte != ' ' || (!words.empty() && words.back() != ' ')) {
                words += byte;
            }
        }
        return words.substr(0, words.find_last_not_of(' ') + 1);
    };
    return plain(one) == plain(other);
}

std::string grouped(std::size_t number) {
    return groupedNumber(std::to_string(number)).value_or("");
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

} // namespace vasker
