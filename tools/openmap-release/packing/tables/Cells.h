#pragma once
// What the text of a cell says: nothing, a name, a number.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vasker {

[[nodiscard]] constexpr bool isDigit(char byte) noexcept {
    return byte >= '0' && byte <= '9';
}

/// The published text without blanks around it and without invisible characters (zero-width blanks
/// and joiners, soft hyphens, byte order marks); nothing where the cell is empty, "n/a" or "--".
[[nodiscard]] std::optional<std::string> publishedText(std::string_view cell);

/// publishedText(), and nothing for what people write where there is no place: "na", "none",
/// "unknown" or "-", in any letter case.
[[nodiscard]] std::optional<std::string> placeName(std::string_view cell);

/// Whether two names differ by letter case, full stops and blanks at most.
[[nodiscard]] bool isSameName(std::string_view one, std::string_view other);

/// "450,000.00" as "450,000", "14676" as "14,676", "0.50" as "0.5": digits grouped by thousands, no
/// zeros at the end of a fraction. Nothing where `text` is no plain decimal number.
[[nodiscard]] std::optional<std::string> groupedNumber(std::string_view text);
/// "14,676".
[[nodiscard]] std::string grouped(std::size_t number);

} // namespace vasker
