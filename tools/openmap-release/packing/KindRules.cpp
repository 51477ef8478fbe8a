#include "tools/openmap-release/packing/KindRules.h"

#include "tools/openmap-release/packing/tables/Cells.h"

#include <algorithm>
#include <span>

namespace vasker {
namespace {

enum class Hash { separates, belongsToItsWord };

/// The words of `text` in lower case.
std::vector<std::string> wordsOf(std::string_view text, Hash hash) {
    std::vector<std::string> words;
    bool isInWord = false;
    for (const char byte : text) {
        const bool isUpper = byte >= 'A' && byte <= 'Z';
        const bool isOther = (byte >= 'a' && byte <= 'z') || isDigit(byte) ||
                             (byte == '#' && hash == Hash::belongsToItsWord) ||
                             (static_cast<unsigned char>(byte) & 0x80U) != 0;
        if (!isUpper && !isOther) {
            isInWord = false;
            continue;
        }
        if (!isInWord) {
            words.emplace_back();
            isInWord = true;
        }
        words.back() += isUpper ? static_cast<char>(byte - 'A' + 'a') : byte;
    }
    return words;
}

bool matches(std::string_view word, std::string_view pattern) {
    if (!pattern.ends_with('#')) {
        return word == pattern;
    }
    pattern.remove_suffix(1);
    return word.starts_with(pattern) && std::ranges::any_of(word.substr(pattern.size()), isDigit);
}

bool applies(const KindRule& rule,
             const FacilityTraits& traits,
             std::span<const std::string_view> names) {
    const auto isOfIndustry = [&](std::string_view code) { return code.starts_with(rule.naics); };
    const auto isNamed = [&](const std::string& words) {
        return std::ranges::any_of(
            names, [&](std::string_view name) { return containsWords(name, words); });
    };
    const bool isOfType = traits.petrinex.size() == 1 && traits.petrinex.front() == rule.petrinex;
    return (rule.naics.empty() || std::ranges::any_of(traits.naics, isOfIndustry)) &&
           (rule.sector.empty() || rule.sector == traits.sector) &&
           (rule.petrinex.empty() || isOfType) &&
           (rule.words.empty() || std::ranges::any_of(rule.words, isNamed));
}

} // namespace

const KindRule* KindRules::rule(std::size_t number) const {
    for (const std::vector<KindRule>* list : {&codes, &names, &rest}) {
        if (number >= 1 && number <= list->size()) {
            return &(*list)[number - 1];
        }
        number -= std::min(number, list->size());
    }
    return nullptr;
}

std::size_t KindRules::find(const FacilityTraits& traits) const {
    const auto place = [&](const std::vector<KindRule>& list,
                           std::span<const std::string_view> asked) -> std::size_t {
        const auto found = std::ranges::find_if(
            list, [&](const KindRule& rule) { return applies(rule, traits, asked); });
        return found == list.end() ? 0 : static_cast<std::size_t>(found - list.begin()) + 1;
    };
    if (const std::size_t number = place(codes, traits.names)) {
        return number;
    }
    for (const std::string_view& name : traits.names) {
        if (const std::size_t number = place(names, std::span(&name, 1))) {
            return codes.size() + number;
        }
    }
    const std::size_t number = place(rest, traits.names);
    return number == 0 ? 0 : codes.size() + names.size() + number;
}

bool containsWords(std::string_view name, std::string_view phrase) {
    const std::vector<std::string> words = wordsOf(name, Hash::separates);
    const std::vector<std::string> patterns = wordsOf(phrase, Hash::belongsToItsWord);
    return std::search(words.begin(), words.end(), patterns.begin(), patterns.end(), matches) !=
               words.end() ||
           patterns.empty();
}

} // namespace vasker
