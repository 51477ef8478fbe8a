#pragma once
// The category of a reporting facility, from its industry codes, then from words of its name.
// docs/data.md prints the same table.

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct FacilityTraits {
    std::string_view name;
    std::vector<std::string_view> naics; ///< one per table that reports the facility; may be empty
    std::string_view sector;             ///< NPRI's key industrial sector code; may be empty
};

/// A line of the table: it applies where everything that it names is so.
struct KindRule {
    std::string_view kind;
    std::string_view naics;              ///< how a NAICS code begins; empty: any or none
    std::string_view sector;             ///< empty: any or none
    std::vector<std::string_view> words; ///< one of these stands in the name; empty: any name
};

/// The rules in their order; the last one applies to every facility.
[[nodiscard]] std::span<const KindRule> kindRules();

/// The category key of the first rule that applies.
[[nodiscard]] std::string_view facilityKind(const FacilityTraits& traits);

/// Whether the words of `phrase` stand in `name` one after the other, whole, in any letter case of
/// the English alphabet; what is neither letter nor digit separates words.
[[nodiscard]] bool containsWords(std::string_view name, std::string_view phrase);

} // namespace vasker
