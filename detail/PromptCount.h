#pragma once
// How much of a list is laid out at once, so that a sheet opens within two frames whatever the
// release holds. A view makes the other rows right after, one a frame.

#include <QtGlobal>

namespace vasker {

/// As many rows of a fact, the least tall ones, fill a sheet below its head.
inline constexpr int mostPromptRows = 7;

/// Of the rows that make up a list, as many from the start as hold `mostCharacters` together, at
/// least one and at most `mostPromptRows`. `length` tells a row's number of characters.
template <typename Rows, typename Length>
[[nodiscard]] int promptCount(const Rows& rows, Length length) {
    constexpr qsizetype mostCharacters = 3000; // about what a sheet's height holds
    qsizetype characters = 0;
    int count = 0;
    for (const auto& row : rows) {
        characters += length(row);
        if (count == mostPromptRows || (count > 0 && characters > mostCharacters)) {
            break;
        }
        ++count;
    }
    return count;
}

} // namespace vasker
