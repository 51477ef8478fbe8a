#pragma once
// How an unknown category key is shown.

#include <string>
#include <string_view>

namespace vasker {

/// Returns `text` with each word between whitespace in title case: its first letter in upper case,
/// the others in lower case. Everything else stays as it is. UTF-8; any thread.
[[nodiscard]] std::string capitalized(std::string_view text);

} // namespace vasker
