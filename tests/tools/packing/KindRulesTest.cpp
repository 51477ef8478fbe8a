#include "tools/openmap-release/packing/KindRules.h"

#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

struct Case {
    std::string_view name;
    std::string_view naics;
    std::string_view sector;
    std::string_view kind;
};

TEST(KindRules, TellCategoriesFromCodesThenFromWords) {
    for (const Case& c :
         {Case{"Cold Lake Gas Plant", "211141", "10", "oil_sands_insitu"},
          Case{"Any Name", "211142", "", "oil_sands_plant"},
          Case{"Any Terminal", "324110", "12", "refinery"},
          Case{"Harbour LNG Terminal", "", "9", "lng_plant"},
          Case{"Empress Straddle Gas Plant", "211113", "16", "straddle_plant"},
          Case{"Storage and Fractionation", "211113", "16", "fractionation"},
          Case{"Lake SAGD Bitumen Battery", "211114", "10", "oil_sands_insitu"},
          Case{"River, In-Situ Oil Sands Plant", "211114", "10", "oil_sands_insitu"},
          Case{"Hill Oil Sands", "211114", "10", "oil_sands_plant"},
          Case{"Thermal Springs Battery", "211113", "16", "processing"},
          Case{"SOUR GAS PROCESSING PLANT", "211113", "16", "gas_plant"},
          Case{"Offgas Plant", "324190", "12", "processing"},
          Case{"Raffinerie de l’Est", "", "12", "refinery"},
          Case{"TERMINAL DE L'EST", "", "9", "terminal"},
          Case{"Terminus Ouest", "", "9", "processing"},
          Case{"Gas Storage Facility", "211113", "16", "storage"},
          Case{"Hill Compressor 3-4", "211113", "16", "other"},
          Case{"Station 107 - North", "", "9", "other"},
          Case{"Ranger Station Battery", "211113", "16", "processing"},
          Case{"Gold Creek", "486210", "9", "other"},
          Case{"P-07 Mobile Plant", "324121", "12", "processing"},
          Case{"Plain", "", "", "processing"}}) {
        EXPECT_EQ(facilityKind({c.name, {c.naics}, c.sector}), c.kind) << c.name;
    }
}

TEST(KindRules, AnyOfSeveralIndustryCodesCounts) {
    EXPECT_EQ(facilityKind({"Cold Lake", {"211114", "211141"}, "10"}), "oil_sands_insitu");
}

TEST(KindRules, WordsAreWhole) {
    EXPECT_TRUE(containsWords("(gas-plant)", "Gas Plant"));
    EXPECT_FALSE(containsWords("Biogas Plant", "Gas Plant"));
    EXPECT_FALSE(containsWords("Gas Plantation", "Gas Plant"));
    EXPECT_FALSE(containsWords("Érefinery", "Refinery"));
    EXPECT_FALSE(containsWords("", "LNG"));
}

TEST(KindRules, TheLastRuleTakesEverything) {
    const KindRule& last = kindRules().back();
    EXPECT_EQ(last.kind, "processing");
    EXPECT_TRUE(last.naics.empty() && last.sector.empty() && last.words.empty());
}

/// A line of the table in docs/data.md.
std::string documented(std::size_t number, const KindRule& rule) {
    const auto cell = [](std::string_view text) {
        return text.empty() ? std::string(" |") : " " + std::string(text) + " |";
    };
    std::string words;
    for (const std::string_view word : rule.words) {
        words += (words.empty() ? "" : ", ") + std::string(word);
    }
    return "| " + std::to_string(number) + " | `" + std::string(rule.kind) + "` |" +
           cell(rule.naics) + cell(rule.sector) + cell(words) + "\n";
}

TEST(KindRules, AreTheTableOfTheDocument) {
    std::string table;
    for (const KindRule& rule : kindRules()) {
        const auto lines = static_cast<std::size_t>(std::ranges::count(table, '\n'));
        table += documented(lines + 1, rule);
    }
    EXPECT_NE(contentOf(VASKER_DATA_DOCUMENT).find(table), std::string::npos) << table;
}

} // namespace
} // namespace vasker
