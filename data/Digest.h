#pragma once
// The digest that identifies a release file.

#include <stop_token>
#include <string>
#include <string_view>

namespace vasker {

/// Returns the SHA-256 digest of `bytes` as 64 lower-case hexadecimal digits. Throws Cancelled if
/// `stop` asks to stop.
[[nodiscard]] std::string sha256(std::string_view bytes, const std::stop_token& stop = {});

} // namespace vasker
