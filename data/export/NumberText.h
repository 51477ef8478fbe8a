#pragma once
// Numbers as exported files and the release tool write them.

#include <array>
#include <charconv>
#include <string>

namespace vasker {

/// A finite number in the fewest digits that read back to it, without an exponent: "-118.5298".
[[nodiscard]] inline std::string numberText(double number) {
    // A denormal number has 1,074 places.
    std::array<char, 1100> digits{};
    const auto written =
        std::to_chars(digits.begin(), digits.end(), number, std::chars_format::fixed);
    return {digits.begin(), written.ptr};
}

} // namespace vasker
