#pragma once
// Whether a text is the address of a public web page.

#include <string_view>

namespace vasker {

/// Whether `text` is a URL by RFC 3986 with exactly the scheme "https" (in lower case), a host that
/// is not empty, and neither user nor password (an empty user part, as in "https://@host", counts
/// as one). A text that is no URL answers no.
[[nodiscard]] bool secureURL(std::string_view text);

} // namespace vasker
