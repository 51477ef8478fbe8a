#include "tools/openmap-release/packing/TomlText.h"

#include <charconv>

namespace vasker {
namespace {

constexpr char mark = '@';

} // namespace

std::string asciiToml(std::string_view toml) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string ascii;
    ascii.reserve(toml.size());
    for (const char character : toml) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80 && character != mark) {
            ascii += character;
        } else {
            ascii += mark;
            ascii += digits[byte >> 4U];
            ascii += digits[byte & 0xFU];
        }
    }
    return ascii;
}

std::string fromAsciiToml(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t place = 0; place < text.size(); ++place) {
        unsigned byte = 0;
        const char* digits = text.data() + place + 1;
        const bool isMarked = text[place] == mark && place + 2 < text.size() &&
                              std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
        bytes += isMarked ? static_cast<char>(byte) : text[place];
        place += isMarked ? 2 : 0;
    }
    return bytes;
}

} // namespace vasker
