#pragma once
#include <string>
#include <string_view>

namespace vasker {

/// The SHA-256 digest of `bytes` as 64 lower-case hexadecimal digits.
[[nodiscard]] std::string sha256(std::string_view bytes);

} // namespace vasker
