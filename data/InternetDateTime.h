#pragma once
// Whether a text is an internet date-time (the profile of ISO 8601 that RFC 3339 describes).

#include <string_view>

namespace vasker {

/// Whether `text` is exactly YYYY-MM-DDTHH:MM:SS followed by Z, +hh:mm or -hh:mm: a day that the
/// Gregorian calendar has (years 0000 to 9999), hours 0 to 23, minutes and seconds 0 to 59, the
/// zone likewise; upper-case T and Z, ASCII digits, no fraction of a second and no leap second.
[[nodiscard]] bool isInternetDateTime(std::string_view text);

} // namespace vasker
