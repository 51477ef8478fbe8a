#pragma once
// Where a text that is too long to be shown whole is cut.

#include <cstddef>
#include <string_view>

namespace vasker {

/// Returns as many whole code points of `text`, which is UTF-8, as fit into `longest` bytes, from
/// its beginning on: a view of `text`.
[[nodiscard]] constexpr std::string_view beginningOf(std::string_view text, std::size_t longest) {
    if (text.size() <= longest) {
        return text;
    }
    const auto continuesACodePoint = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
    };
    while (longest > 0 && continuesACodePoint(text[longest])) {
        --longest;
    }
    return text.substr(0, longest);
}

} // namespace vasker
