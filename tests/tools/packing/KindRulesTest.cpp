#include "tools/openmap-release/packing/KindRules.h"

#include "tests/tools/ToolRun.h"
#include "tools/openmap-release/packing/Description.h"

#include <gtest/gtest.h>

#include <set>

namespace vasker {
namespace {

/// The rules of the packaged release.
const KindRules& rules() {
    static const Description description =
        readDescription("description.toml", contentOf(VASKER_DESCRIPTION));
    return description.categories;
}

struct Case {
    std::string_view name;
    std::string_view naics;
    std::string_view sector;
    std::string_view kind;
};

/// Names that a rule has to take, and names beside them that it must leave to another.
constexpr auto cases = std::to_array<Case>({
    {"Any Name", "211142", "", "oil_sands_plant"},
    {"Cold Lake Gas Plant", "211141", "10", "oil_sands_insitu"},
    {"Any Terminal", "324110", "12", "refinery"},
    {"Harbour LNG Marine Terminal", "", "9", "lng_plant"},
    {"Empress Straddle Gas Plant", "211113", "16", "straddle_plant"},
    {"Storage and Fractionation", "211113", "16", "fractionation"},
    {"Buck Creek Frac Plant", "211113", "16", "fractionation"},
    {"Frac Sand Depot", "211113", "16", "processing"},
    {"Empress NGL Extraction Plant", "211113", "16", "extraction_plant"},
    {"Extraction Road 4-5", "211113", "16", "processing"},
    {"Lake SAGD Bitumen Battery", "211114", "10", "oil_sands_insitu"},
    {"River, In-Situ Oil Sands Plant", "211114", "10", "oil_sands_insitu"},
    {"Hill Oil Sands", "211114", "10", "oil_sands_plant"},
    {"Oil Sands Road 4-5", "211113", "16", "processing"},
    {"SOUR GAS PROCESSING PLANT", "211113", "16", "gas_plant"},
    {"Swan Hills GP/CS", "211113", "16", "gas_plant"},
    {"Rycroft Battery & Gas Plant 08-25", "211113", "16", "gas_plant"},
    {"AG20 ABGP0001220 NEVIS 12-07", "211110", "", "gas_plant"},
    {"Offgas Plant", "324190", "12", "petroleum_products_plant"},
    {"Raffinerie de l’Est", "", "12", "refinery"},
    {"TERMINAL DE L'EST", "", "9", "terminal"},
    {"Kemp River Storage Terminal", "", "9", "terminal"},
    {"Gas Storage Facility", "211113", "16", "storage"},
    {"Karr Tank Farm", "211113", "16", "storage"},
    {"Sandwich Pool Station", "", "9", "storage"},
    {"Pool 4-5", "211113", "16", "processing"},
    {"Hill Compressor 3-4", "211113", "16", "compressor_station"},
    {"Fox Creek Comp Stat 11-32", "211110", "", "compressor_station"},
    {"Complex 3-4", "211113", "16", "processing"},
    {"Brintnell Oil Battery and Comp Stn", "211113", "16", "compressor_station"},
    {"Waterton Complex - Compressor Station X", "211113", "16", "compressor_station"},
    {"Cs4a - Summit Lake", "", "9", "compressor_station"},
    {"Csn5 - MacKie Creek", "", "9", "compressor_station"},
    {"Booster Station 9 - Nig Creek", "", "9", "compressor_station"},
    {"Teepee Comressor Station", "211113", "16", "compressor_station"},
    {"CSIS 4-5", "211113", "16", "processing"},
    {"Lake Oil Mwb 03-21", "211110", "", "battery"},
    {"Strath Multi-Well Oil Battery", "211113", "16", "battery"},
    {"Skbtb4l0170", "211110", "", "battery"},
    {"Kaybob Ob 03-24", "211110", "", "battery"},
    {"Senlac Thermal Oil Battery", "211113", "16", "battery"},
    {"Batty Hill 3-4", "211113", "16", "processing"},
    {"BIGSTICK G.G.S.", "", "16", "gas_gathering_system"},
    {"Gulf Deer 1-3 BT & GS", "211113", "16", "battery"},
    {"Gathering", "211110", "", "gas_gathering_system"},
    {"Holden 09-19 (Abgs0002487)", "211110", "", "gas_gathering_system"},
    {"Milk River Pump Station", "213118", "11", "pipeline_station"},
    {"Petroway Asphalt Plant", "324121", "12", "asphalt_plant"},
    {"Ajax HMA Plant", "", "12", "asphalt_plant"},
    {"USINE DE FABRICATION D'ASPHALTE", "", "12", "asphalt_plant"},
    {"P-07 Mobile Plant", "324121", "12", "asphalt_plant"},
    {"Sea Rose FPSO", "", "16", "offshore_platform"},
    {"Platformers Ridge", "", "16", "processing"},
    {"Hanlan 6-21 Dehy", "211113", "16", "dehydrator"},
    {"BLACKSTONE 9-23 DEHY CS", "211113", "16", "compressor_station"},
    {"Lindbergh Custom Treating Facility", "211110", "", "treating_facility"},
    {"Judy Creek TRD", "213118", "11", "treating_facility"},
    {"Pintail 14-34 disposal well", "", "16", "injection_facility"},
    {"Countess Sat 5 Oil Battery", "211113", "16", "battery"},
    {"Brintnell Bitumen Satellite", "211114", "10", "satellite"},
    {"Rush Lake 2 Thermal Plant", "211110", "", "thermal_project"},
    {"Pinto 04-05 Single Well", "211113", "16", "well_site"},
    {"Pembina 13-21 Multi-Well Pad", "211113", "16", "well_site"},
    {"Jumping Pound 1-7 Well Site Compressor", "211113", "16", "compressor_station"},
    {"Norman Wells Central Processing Facility", "", "16", "processing"},
    {"Norman Wells Station", "", "9", "pipeline_station"},
    {"Station 107 - North", "", "9", "pipeline_station"},
    {"Mackenzie Stn 3", "486110", "", "pipeline_station"},
    {"Ranger Station 4-5", "211113", "16", "processing"},
    {"Gold Creek", "486210", "9", "pipeline_facility"},
    {"Maple Gas Inc.", "221210", "", "gas_distribution"},
    {"Usine de St-Isidore", "", "12", "petroleum_products_plant"},
    {"Grease Works", "324190", "", "petroleum_products_plant"},
    {"Metro Depot", "", "9", "processing"},
    {"Plain", "", "", "processing"},
});

std::string kindOf(const FacilityTraits& traits) {
    return rules().rule(rules().find(traits))->kind;
}

FacilityTraits traitsOf(const Case& c) {
    FacilityTraits traits{{c.name}, {}, c.sector, {}};
    if (!c.naics.empty()) {
        traits.naics.push_back(c.naics);
    }
    return traits;
}

TEST(KindRules, TellCategoriesFromCodesAndWords) {
    for (const Case& c : cases) {
        EXPECT_EQ(kindOf(traitsOf(c)), c.kind) << c.name;
    }
}

TEST(KindRules, EachHasAFacilityThatItTakes) {
    std::set<std::size_t> taken;
    for (const Case& c : cases) {
        taken.insert(rules().find(traitsOf(c)));
    }
    for (const std::string_view type : {"GP", "CS", "BT", "GS", "IF"}) {
        taken.insert(rules().find({{"Plain"}, {}, "", {type}}));
    }
    for (std::size_t number = 1; number <= rules().size(); ++number) {
        EXPECT_TRUE(taken.contains(number)) << number << " " << rules().rule(number)->kind;
    }
}

TEST(KindRules, AnyOfSeveralIndustryCodesCounts) {
    EXPECT_EQ(kindOf({{"Cold Lake"}, {"211114", "211141"}, "10", {}}), "oil_sands_insitu");
}

TEST(KindRules, TheRecordsOwnNameIsAskedBeforeAnother) {
    EXPECT_EQ(kindOf({{"Malmo Oil Battery", "Malmo Sour Gas Plant"}, {}, "", {}}), "battery");
    EXPECT_EQ(kindOf({{"Alces", "Alces River Comp Stn"}, {}, "9", {}}), "compressor_station");
    // A name that only says "Station" leaves it to the other.
    EXPECT_EQ(kindOf({{"Station 107 - Swastika", "Swastika Comp Stn"}, {}, "9", {}}),
              "compressor_station");
}

TEST(KindRules, ARegistryTypeDecidesWhereAllCodesHaveItAndNoNameTellsMore) {
    EXPECT_EQ(kindOf({{"Placid 6-29"}, {"211110"}, "", {"BT"}}), "battery");
    EXPECT_EQ(kindOf({{"Placid 6-29"}, {"211110"}, "", {"BT", "IF"}}), "processing");
    EXPECT_EQ(kindOf({{"Placid Gas Plant"}, {"211110"}, "", {"BT"}}), "gas_plant");
    EXPECT_EQ(kindOf({{"Placid 6-29"}, {"211110"}, "", {"OT"}}), "processing");
}

TEST(KindRules, WordsAreWhole) {
    EXPECT_TRUE(containsWords("(gas-plant)", "Gas Plant"));
    EXPECT_FALSE(containsWords("Biogas Plant", "Gas Plant"));
    EXPECT_FALSE(containsWords("Gas Plantation", "Gas Plant"));
    EXPECT_FALSE(containsWords("Gas Sour Plant", "Gas Plant"));
    EXPECT_FALSE(containsWords("Érefinery", "Refinery"));
    EXPECT_FALSE(containsWords("", "LNG"));
}

TEST(KindRules, AHashStandsForLettersAndDigits) {
    EXPECT_TRUE(containsWords("Station CS16", "CS#"));
    EXPECT_TRUE(containsWords("cs2b - Azouzetta", "CS#"));
    EXPECT_FALSE(containsWords("CS", "CS#"));
    EXPECT_FALSE(containsWords("CSIS", "CS#"));
    EXPECT_FALSE(containsWords("ACS16", "CS#"));
    EXPECT_TRUE(containsWords("Battery #2", "Battery"));
    EXPECT_TRUE(containsWords("Battery#2", "Battery"));
}

/// A line of the table in docs/data.md.
std::string documented(std::size_t number, const KindRule& rule) {
    const auto cell = [](std::string_view text) {
        return text.empty() ? std::string(" |") : " " + std::string(text) + " |";
    };
    std::string words;
    for (const std::string& word : rule.words) {
        words += (words.empty() ? "" : ", ") + word;
    }
    return "| " + std::to_string(number) + " | `" + rule.kind + "` |" + cell(rule.naics) +
           cell(rule.sector) + cell(rule.petrinex) + cell(words) + "\n";
}

TEST(KindRules, AreTheTableOfTheDocument) {
    std::string table;
    for (std::size_t number = 1; number <= rules().size(); ++number) {
        table += documented(number, *rules().rule(number));
    }
    EXPECT_NE(contentOf(VASKER_DATA_DOCUMENT).find(table), std::string::npos) << table;
}

} // namespace
} // namespace vasker
