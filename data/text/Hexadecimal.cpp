#include "data/text/Hexadecimal.h"

namespace vasker {

namespace {

/// The bytes of the digit that `text`, which is not empty, begins with; 0: it is none.
std::size_t hexadecimalDigitLength(std::string_view text) {
    const auto isBetween = [](char character, char first, char last) {
        return character >= first && character <= last;
    };
    const char first = text.front();
    if (isBetween(first, '0', '9') || isBetween(first, 'A', 'F') || isBetween(first, 'a', 'f')) {
        return 1;
    }
    constexpr std::size_t wideLength = 3;
    if (text.size() < wideLength) {
        return 0;
    }
    const bool isWide = (text.starts_with("\xEF\xBC") && (isBetween(text[2], '\x90', '\x99') ||
                                                          isBetween(text[2], '\xA1', '\xA6'))) ||
                        (text.starts_with("\xEF\xBD") && isBetween(text[2], '\x81', '\x86'));
    return isWide ? wideLength : 0;
}

} // namespace

bool isHexadecimal(std::string_view text, std::size_t digits) noexcept {
    for (; !text.empty() && digits > 0; --digits) {
        const std::size_t length = hexadecimalDigitLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return text.empty() && digits == 0;
}

} // namespace vasker
