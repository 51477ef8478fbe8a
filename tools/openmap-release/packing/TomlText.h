#pragma once
// TOML text as ASCII and back. toml++ 3.3 asks of every character outside a text in quotes whether
// it is a blank, and has no defined behaviour for most letters beyond ASCII.

#include <string>
#include <string_view>

namespace vasker {

/// `toml` with each byte beyond ASCII, and each "@", as "@" and two hexadecimal digits. It has the
/// same lines, and is TOML where `toml` is.
[[nodiscard]] std::string asciiToml(std::string_view toml);

/// The bytes of a text of asciiToml().
[[nodiscard]] std::string fromAsciiToml(std::string_view text);

} // namespace vasker
