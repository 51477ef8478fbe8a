#pragma once
// The definitions of the lists that views show, as plain functions that keep nothing. Views use a
// ReleaseIndex; tests compare it with these.

#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"

#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// Returns the records that are of `kind` ("all" stands for every kind) and match `query`, sorted
/// by name. Records whose names are equal in that order are in file order.
[[nodiscard]] std::vector<AssetIndex> filtered(const OpenMapRelease& release,
                                               std::string_view query,
                                               std::string_view kind,
                                               const TextLocale& locale);

/// Returns the distinct kinds of the records, in the code-point order of their composed forms.
/// Throws Cancelled if `stop` asks to stop.
[[nodiscard]] std::vector<std::string> kinds(const OpenMapRelease& release,
                                             const std::stop_token& stop = {});

} // namespace vasker
