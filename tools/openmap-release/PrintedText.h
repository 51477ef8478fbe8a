#pragma once
// Texts of a release and of its sources as the tool prints them.

#include "data/text/Beginning.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace vasker {

/// `text` with a blank for each control character, so that no text of a release steers the terminal
/// that it is printed on.
[[nodiscard]] inline std::string printedText(std::string text) {
    for (std::size_t place = 0; place < text.size(); ++place) {
        const auto byte = static_cast<unsigned char>(text[place]);
        const bool isLead = byte == 0xC2 && place + 1 < text.size();
        if (byte < 0x20 || byte == 0x7F) {
            text[place] = ' ';
        } else if (isLead && static_cast<unsigned char>(text[place + 1]) < 0xA0) {
            // U+0080 to U+009F: control characters of two bytes.
            text.replace(place, 2, " ");
        }
    }
    return text;
}

/// `text`, UTF-8, where it has at most `longest` bytes; else as many of its characters, and `mark`.
[[nodiscard]] inline std::string
shortenedText(std::string text, std::size_t longest, std::string_view mark) {
    if (const std::size_t size = beginningOf(text, longest).size(); size < text.size()) {
        text.resize(size);
        text += mark;
    }
    return text;
}

} // namespace vasker
