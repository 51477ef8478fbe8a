#pragma once
// Invented names and values that look like published ones: places and makers in English and French,
// survey numbers, quantities with units.

#include "tools/openmap-release/RandomSequence.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct SyntheticFact {
    std::string label;
    std::string value;
};

/// The category keys a synthetic point facility may have; "pipeline" is for records with a route.
[[nodiscard]] const std::vector<std::string_view>& syntheticFacilityKinds();
/// One of them, the common ones more often.
[[nodiscard]] std::string_view syntheticFacilityKind(RandomSequence& random);

/// "Rivière-du-Cygne Gas Plant 07-21-045-12W5"; the words fit `kind`.
[[nodiscard]] std::string syntheticFacilityName(std::string_view kind, RandomSequence& random);
[[nodiscard]] std::string syntheticPipelineName(RandomSequence& random);
[[nodiscard]] std::string syntheticCompany(RandomSequence& random);

/// A short fact, as most published ones are.
[[nodiscard]] SyntheticFact syntheticFact(RandomSequence& random);

/// A remark of words with at most `characters` characters (at least 1), all of them precomposed.
[[nodiscard]] std::string syntheticRemark(std::size_t characters, RandomSequence& random);

/// Exactly `bytes` bytes of plain ASCII words.
[[nodiscard]] std::string syntheticPadding(std::size_t bytes);

} // namespace vasker
