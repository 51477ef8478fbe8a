#include "tools/openmap-release/packing/KindRules.h"

#include <algorithm>

namespace vasker {
namespace {

constexpr std::string_view mining = "211142";
constexpr std::string_view insitu = "211141";
constexpr std::string_view refining = "324110";
constexpr std::string_view pipelineTransport = "486";
constexpr std::string_view pipelinesAndStorage = "9";
constexpr std::string_view unconventionalOil = "10";

/// " fort hills oil sands ": lower case, one blank around each word.
std::string separatedWords(std::string_view text) {
    std::string words = " ";
    for (const char byte : text) {
        const bool isUpper = byte >= 'A' && byte <= 'Z';
        const bool isLower = byte >= 'a' && byte <= 'z';
        const bool isDigit = byte >= '0' && byte <= '9';
        const bool isBeyondAscii = (static_cast<unsigned char>(byte) & 0x80U) != 0;
        if (isUpper) {
            words += static_cast<char>(byte - 'A' + 'a');
        } else if (isLower || isDigit || isBeyondAscii) {
            words += byte;
        } else if (words.back() != ' ') {
            words += ' ';
        }
    }
    if (words.back() != ' ') {
        words += ' ';
    }
    return words;
}

bool applies(const KindRule& rule, const FacilityTraits& traits) {
    const auto isOfIndustry = [&](std::string_view code) { return code.starts_with(rule.naics); };
    const auto isNamed = [&](std::string_view words) { return containsWords(traits.name, words); };
    return (rule.naics.empty() || std::ranges::any_of(traits.naics, isOfIndustry)) &&
           (rule.sector.empty() || rule.sector == traits.sector) &&
           (rule.words.empty() || std::ranges::any_of(rule.words, isNamed));
}

} // namespace

std::span<const KindRule> kindRules() {
    static const std::vector<KindRule> rules{
        {"oil_sands_plant", mining, "", {}},
        {"oil_sands_insitu", insitu, "", {}},
        {"refinery", refining, "", {}},
        {"lng_plant", "", "", {"LNG"}},
        {"straddle_plant", "", "", {"Straddle"}},
        {"fractionation", "", "", {"Fractionation"}},
        {"oil_sands_insitu", "", unconventionalOil, {"SAGD", "In Situ", "Thermal"}},
        {"oil_sands_plant", "", unconventionalOil, {"Mine", "Upgrader", "Oil Sands"}},
        {"gas_plant", "", "", {"Gas Plant", "Gas Processing Plant"}},
        {"refinery", "", "", {"Refinery", "Raffinerie"}},
        {"terminal", "", "", {"Terminal"}},
        {"storage", "", "", {"Storage"}},
        {"other",
         "",
         "",
         {"Compressor",
          "Comp Station",
          "Pump Station",
          "Pumping Station",
          "Meter Station",
          "Metering Station"}},
        {"other", "", pipelinesAndStorage, {"Station"}},
        {"other", pipelineTransport, "", {}},
        {"processing", "", "", {}},
    };
    return rules;
}

std::string_view facilityKind(const FacilityTraits& traits) {
    const std::span<const KindRule> rules = kindRules();
    return std::ranges::find_if(rules, [&](const KindRule& rule) { return applies(rule, traits); })
        ->kind;
}

bool containsWords(std::string_view name, std::string_view phrase) {
    return separatedWords(name).find(separatedWords(phrase)) != std::string::npos;
}

} // namespace vasker
