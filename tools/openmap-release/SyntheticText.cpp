#include "tools/openmap-release/SyntheticText.h"

#include <array>

namespace vasker {
namespace {

struct FacilityWords {
    std::string_view kind;
    std::string_view words;
    std::size_t weight;
};

constexpr auto facilityWords = std::to_array<FacilityWords>({
    {"gas_plant", "Gas Plant", 30},
    {"processing", "Oil Battery", 30},
    {"other", "Compressor Station", 16},
    {"oil_sands_insitu", "Thermal Project", 5},
    {"terminal", "Terminal", 5},
    {"storage", "Gas Storage", 3},
    {"refinery", "Raffinerie", 3},
    {"fractionation", "Fractionation Plant", 2},
    {"straddle_plant", "Straddle Plant", 2},
    {"petrochemical", "Usine pétrochimique", 1},
    {"oil_sands_plant", "Upgrader", 2},
    {"lng_plant", "LNG", 1},
});

constexpr auto places = std::to_array<std::string_view>({
    "Bois-des-Érables",  "Rivière-du-Cygne", "Sainte-Hélène",   "Lac Doré",
    "Moose Hollow",      "Windy Coulee",     "Beaver Crossing", "Pointe-à-la-Loutre",
    "Saskatoon Berry",   "Kettle Rapids",    "Grande Forêt",    "Otter Slough",
    "Ptarmigan Ridge",   "Baie-Noël",        "Cut Bank",        "Muskeg Flats",
    "Three Hawks",       "Île-aux-Hérons",   "Red Willow",      "Drumlin Lake",
    "Anse-à-Brillant",   "Old Ferry",        "Prairie Rose",    "Chinook Butte",
    "Wolverine Narrows", "Côte-Blanche",     "Jack Pine",       "Sturgeon Bend",
});

constexpr auto makers = std::to_array<std::string_view>({
    "Boreal Reach",
    "Énergie Trois-Lacs",
    "Silver Poplar",
    "Northern Kestrel",
    "Hydrocarbures Béluga",
    "Tamarack",
    "Blue Heron",
    "Ressources Caribou",
    "Longspur",
    "Prairie Lynx",
    "Gaz Montérégie",
    "Cedar Gate",
});
constexpr auto makerForms = std::to_array<std::string_view>(
    {"Energy Ltd.", "Resources Inc.", "Midstream ULC", "Ltée", "Limited Partnership", "Corp."});
constexpr auto pipelineForms = std::to_array<std::string_view>(
    {"Pipeline", "Gas Pipeline", "Oil Pipeline", "Lateral", "Oléoduc", "Gazoduc", "Connector"});

constexpr auto words = std::to_array<std::string_view>({
    "reported", "capacity", "of",      "the",      "site",     "since",    "déclaré",   "mesuré",
    "pipeline", "near",     "rivière", "and",      "estimate", "produced", "gaz",       "naturel",
    "stored",   "annual",   "méthane", "facility", "in",       "période",  "published", "by",
    "province", "section",  "phase",   "été",      "value",    "with",     "à",         "réseau",
});

template <std::size_t size>
std::string_view oneOf(const std::array<std::string_view, size>& texts, RandomSequence& random) {
    return texts[random.below(size)];
}

std::string joined(std::string_view first, std::string_view second) {
    std::string text(first);
    text += ' ';
    text += second;
    return text;
}

std::string twoDigits(std::size_t number) {
    std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits;
}

std::string landSurvey(RandomSequence& random) {
    return twoDigits(1 + random.below(16)) + "-" + twoDigits(1 + random.below(36)) + "-0" +
           twoDigits(10 + random.below(89)) + "-" + twoDigits(1 + random.below(26)) + "W" +
           std::to_string(4 + random.below(3));
}

/// "1234.56" from a count of hundredths.
std::string hundredths(std::size_t count) {
    return std::to_string(count / 100) + "." + twoDigits(count % 100);
}

constexpr bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::size_t codePoints(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) {
        count += continuesCharacter(byte) ? 0U : 1U;
    }
    return count;
}

} // namespace

const std::vector<std::string_view>& syntheticFacilityKinds() {
    static const std::vector<std::string_view> kinds = [] {
        std::vector<std::string_view> keys;
        keys.reserve(std::size(facilityWords));
        for (const FacilityWords& entry : facilityWords) {
            keys.push_back(entry.kind);
        }
        return keys;
    }();
    return kinds;
}

std::string_view syntheticFacilityKind(RandomSequence& random) {
    std::size_t drawn = random.below(100);
    for (const FacilityWords& entry : facilityWords) {
        if (drawn < entry.weight) {
            return entry.kind;
        }
        drawn -= entry.weight;
    }
    return "processing";
}

std::string syntheticFacilityName(std::string_view kind, RandomSequence& random) {
    std::string_view form = "Facility";
    for (const FacilityWords& entry : facilityWords) {
        if (entry.kind == kind) {
            form = entry.words;
        }
    }
    std::string name = joined(oneOf(places, random), form);
    return random.onceIn(3) ? joined(name, std::to_string(1 + random.below(40)))
                            : joined(name, landSurvey(random));
}

std::string syntheticPipelineName(RandomSequence& random) {
    const std::string_view from = oneOf(places, random);
    const std::string_view destination = oneOf(places, random);
    return joined(std::string(from) + "–" + std::string(destination), oneOf(pipelineForms, random));
}

std::string syntheticCompany(RandomSequence& random) {
    const std::string_view maker = oneOf(makers, random);
    return joined(maker, oneOf(makerForms, random));
}

SyntheticFact syntheticFact(RandomSequence& random) {
    switch (random.below(8)) {
    case 0:
        return {"City", std::string(oneOf(places, random))};
    case 1:
        return {"Total emissions", hundredths(random.below(900'000)) + " kt CO2 eq"};
    case 2:
        return {"Owner", syntheticCompany(random) + " [100.00%]"};
    case 3:
        return {"Land survey", landSurvey(random)};
    case 4:
        return {"Capacity", std::to_string(1 + random.below(4500)) + " MMcf/d"};
    case 5:
        return {"Diameter", std::to_string(2 * (3 + random.below(22))) + " in"};
    case 6:
        return {"Start year", std::to_string(1951 + random.below(74))};
    default:
        return {"Industry", "Conventional Oil and Gas Extraction · pétrole et gaz"};
    }
}

std::string syntheticRemark(std::size_t characters, RandomSequence& random) {
    std::string remark;
    std::size_t length = 0;
    while (length < characters) {
        const std::string_view word = oneOf(words, random);
        const std::size_t grown = length + codePoints(word) + (length == 0 ? 0 : 1);
        if (grown > characters) {
            remark.append(characters - length, 'x');
            break;
        }
        if (length != 0) {
            remark += ' ';
        }
        remark += word;
        length = grown;
    }
    return remark;
}

std::string syntheticPadding(std::size_t bytes) {
    constexpr std::string_view pattern = " and further values as reported";
    std::string padding;
    padding.reserve(bytes + pattern.size());
    while (padding.size() < bytes) {
        padding += pattern;
    }
    padding.resize(bytes);
    return padding;
}

} // namespace vasker
