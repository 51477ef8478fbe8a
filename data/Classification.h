#pragma once
// What the lists of a release mean, written as plain, uncached definitions.
// Views ask a ReleaseIndex, which is tested to answer as these do.

#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"

#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// The records of `release` that pass the kind filter ("all": every record) and the search text,
/// sorted by name; names that compare as equal keep their file order.
[[nodiscard]] std::vector<AssetIndex> filtered(const OpenMapRelease& release,
                                               std::string_view query,
                                               std::string_view kind,
                                               const TextLocale& locale);

/// The distinct kinds of `release`, in the code-point order of their canonically composed forms.
[[nodiscard]] std::vector<std::string> kinds(const OpenMapRelease& release);

} // namespace vasker
