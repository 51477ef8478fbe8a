#pragma once
// Texts as JSON.

#include <string>
#include <string_view>

namespace vasker {

/// Appends `text` to `json` as a string of JSON, quotes included. The bytes of `text` stay as they
/// are but for quotes, backslashes and control characters, which are escaped.
void appendJsonText(std::string& json, std::string_view text);

} // namespace vasker
