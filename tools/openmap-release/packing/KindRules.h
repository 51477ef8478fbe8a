#pragma once
// The category of a facility, from its codes and from words of its names. The rules are part of the
// description of a release; docs/data.md prints those of the packaged one.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct FacilityTraits {
    std::vector<std::string_view> names; ///< the record's own, then others, at least one
    std::vector<std::string_view> naics; ///< one per table that reports the facility; may be empty
    std::string_view sector;             ///< NPRI's key industrial sector code; may be empty
    std::vector<std::string_view> petrinex; ///< the types in its registry codes, "BT", each once
};

/// A line of the table: it applies where everything that it names is so.
struct KindRule {
    std::string kind;
    std::string naics;    ///< how a NAICS code begins; empty: any or none
    std::string sector;   ///< empty: any or none
    std::string petrinex; ///< the only type among the registry codes; empty: any or none
    /// One of these stands in the name; empty: any name. See containsWords().
    std::vector<std::string> words;

    [[nodiscard]] bool takesEverything() const {
        return naics.empty() && sector.empty() && petrinex.empty() && words.empty();
    }
};

struct KindRules {
    std::vector<KindRule> codes; ///< asked first, of all names together
    std::vector<KindRule> names; ///< asked of each name in turn, the record's own first
    std::vector<KindRule> rest;  ///< asked last, of all names together

    /// The rule with `number`, counted from 1 through all three lists, or nullptr.
    [[nodiscard]] const KindRule* rule(std::size_t number) const;
    [[nodiscard]] std::size_t size() const { return codes.size() + names.size() + rest.size(); }
    /// The number of the first rule that applies to `traits`, or 0.
    [[nodiscard]] std::size_t find(const FacilityTraits& traits) const;
};

/// Whether the words of `phrase` stand in `name` one after the other, whole, in any letter case of
/// the English alphabet; what is neither letter nor digit separates words. A word of the phrase
/// that ends in "#" stands for every word that goes on with letters and digits, a digit at least.
[[nodiscard]] bool containsWords(std::string_view name, std::string_view phrase);

} // namespace vasker
