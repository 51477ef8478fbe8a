#pragma once
// Where a text stops being JSON, for people who edit release files: the library that decodes a
// release does not tell.

#include <optional>
#include <string>
#include <string_view>

namespace vasker {

/// "line 3, column 14: what is wrong there" for the first fault; nothing where `text` is JSON.
/// Columns count bytes from 1.
[[nodiscard]] std::optional<std::string> jsonFault(std::string_view text);

} // namespace vasker
