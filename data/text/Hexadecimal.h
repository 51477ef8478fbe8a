#pragma once
// Hexadecimal digits, in the forms that texts have.

#include <cstddef>
#include <string_view>

namespace vasker {

/// Whether `text` consists of exactly `digits` hexadecimal digits: 0 to 9, A to F, a to f, and
/// their full-width forms (U+FF10 to FF19, FF21 to FF26, FF41 to FF46).
[[nodiscard]] bool isHexadecimal(std::string_view text, std::size_t digits) noexcept;

} // namespace vasker
