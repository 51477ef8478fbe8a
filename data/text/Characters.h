#pragma once
// Characters as readers count them: the extended grapheme clusters of Unicode.
//
// Texts are UTF-8; ill-formed bytes count as U+FFFD. Any thread.

#include <cstddef>
#include <stop_token>
#include <string_view>
#include <vector>

namespace vasker {

/// Returns the number of characters in `text`, or `limit + 1` if there are more than `limit`.
[[nodiscard]] std::size_t characterCount(std::string_view text, std::size_t limit);

/// A character that consists of several code points, such as a letter with a combining mark, a
/// family of emoji or a carriage return with its line feed.
struct JoinedCharacter {
    std::size_t begin; ///< offset of its first byte
    std::size_t end;   ///< offset of the byte after it
    friend bool operator==(const JoinedCharacter&, const JoinedCharacter&) = default;
};

/// Returns the joined characters of `text`, in their order; each other character is one code point.
/// Throws Cancelled if `stop` asks to stop.
[[nodiscard]] std::vector<JoinedCharacter> joinedCharacters(std::string_view text,
                                                            const std::stop_token& stop = {});

} // namespace vasker
