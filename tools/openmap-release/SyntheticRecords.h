#pragma once
// The records of an invented release before any filling: pipelines that share out the route points,
// facilities of every kind, and the five sources they cite.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/RandomSequence.h"

#include <cstddef>
#include <vector>

namespace vasker {

/// One source for each dataset key, in the order in which syntheticRecords() cites them.
[[nodiscard]] std::vector<OpenMapRelease::Source> syntheticSources();

/// `records` records (at least 1) with `routePoints` route points together (0, or at least 2). Each
/// of `sources` is cited by a record, or by a fact of the first record where there are too few.
[[nodiscard]] std::vector<OpenMapRelease::Asset>
syntheticRecords(std::size_t records,
                 std::size_t routePoints,
                 const std::vector<OpenMapRelease::Source>& sources,
                 RandomSequence& random);

} // namespace vasker
