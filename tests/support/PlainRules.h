#pragma once
// The rules of a release once more, as plainly as they can be written and without the kit's code.
// Tests and fuzz targets compare the kit's answers with these.

#include "data/OpenMapRelease.h"

#include <optional>
#include <string_view>

namespace vasker {

/// Returns why a release with these values has to be refused, or nothing if it is valid.
[[nodiscard]] std::optional<OpenMapRelease::Invalid> plainVerdict(const OpenMapRelease& release);

/// As isInternetDateTime().
[[nodiscard]] bool plainIsInternetDateTime(std::string_view text);

/// As secureURL().
[[nodiscard]] bool plainSecureURL(std::string_view text);

} // namespace vasker
