#pragma once
// From the tables to a release: which rows become records, which are joined, which are left out.
// docs/data.md tells the rules to people.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/PackInput.h"
#include "tools/openmap-release/packing/PackTally.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vasker {

struct Packed {
    OpenMapRelease release;
    PackTally tally;
    /// How many facilities each rule of the categories took; the first element is rule 1.
    std::vector<std::size_t> recordsByRule;
};

/// The same input and time give the same release. `generatedAt` is an internet date-time.
/// Throws InputError for a file that says what cannot be packed.
[[nodiscard]] Packed packRelease(const PackInput& input, const std::string& generatedAt);

} // namespace vasker
