#pragma once
// A comparison of two releases as people read it and as programs do.

#include "tools/openmap-release/comparison/ReleaseComparison.h"

#include <string>

namespace vasker {

/// The release note: a line for each thing that changed, with the records where they are few and
/// the commonest changes where they are many.
[[nodiscard]] std::string comparisonText(const ReleaseComparison& comparison);

/// Every change, as one JSON object.
[[nodiscard]] std::string comparisonJson(const ReleaseComparison& comparison);

} // namespace vasker
