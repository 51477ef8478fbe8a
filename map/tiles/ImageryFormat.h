#pragma once
// The format of an imagery tile, told by its first bytes.

#include <string_view>

namespace vasker {

/// "jpeg", "png" or "webp"; null for any other format.
[[nodiscard]] const char* imageryFormat(std::string_view bytes) noexcept;

} // namespace vasker
