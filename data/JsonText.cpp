#include "data/JsonText.h"

namespace vasker {

namespace {

void appendEscaped(std::string& json, char character) {
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view names = "\"\\bfnrt";
    constexpr std::string_view digits = "0123456789abcdef";
    json += '\\';
    if (const std::size_t at = named.find(character); at != std::string_view::npos) {
        json += names[at];
        return;
    }
    json += "u00";
    json += digits[static_cast<unsigned char>(character) >> 4U];
    json += digits[static_cast<unsigned char>(character) & 0xFU];
}

bool mustBeEscaped(char character) {
    return character == '"' || character == '\\' || static_cast<unsigned char>(character) < 0x20;
}

} // namespace

void appendJsonText(std::string& json, std::string_view text) {
    json += '"';
    std::size_t plainBegin = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (mustBeEscaped(text[at])) {
            json += text.substr(plainBegin, at - plainBegin);
            appendEscaped(json, text[at]);
            plainBegin = at + 1;
        }
    }
    json += text.substr(plainBegin);
    json += '"';
}

} // namespace vasker
