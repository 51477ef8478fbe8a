#include "tools/openmap-release/packing/Description.h"

#include "tests/support/ReleaseBuilder.h"
#include "tests/tools/ToolRun.h"
#include "tools/openmap-release/packing/tables/InputError.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

const std::string& fixture() {
    static const std::string text =
        contentOf(std::string(VASKER_FIXTURES) + "/datasets/description.toml");
    return text;
}

/// The line on which `part` begins.
std::string lineOf(std::string_view text, std::string_view part) {
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(text.find(part));
    return std::to_string(std::count(text.begin(), end, '\n') + 1);
}

/// The message for the fixture with its only `from` replaced; "LINE" stands for the line of `to`.
void expectRefusal(const std::string& from, const std::string& to, std::string message) {
    const std::string text = replaced(fixture(), from, to);
    if (message.find("LINE") != std::string::npos) {
        message = replaced(std::move(message), "LINE", lineOf(text, to));
    }
    try {
        (void)readDescription("d.toml", text);
        ADD_FAILURE() << message;
    } catch (const InputError& error) {
        EXPECT_EQ(error.what(), message);
    }
}

TEST(Description, HoldsWhatTheFileSays) {
    const Description description = readDescription("d.toml", fixture());
    EXPECT_EQ(description.releaseID, "canada-energy");
    EXPECT_EQ(description.limitations, std::vector<std::string>{"Nothing here is real."});
    const Description::Table& oil = *description.table(TableRole::oilPipelines);
    EXPECT_EQ(oil.file, "gem_goit_pipelines.csv");
    EXPECT_EQ(oil.period, "March 2025");
    EXPECT_EQ(oil.routes, "routes/liquid");
    EXPECT_EQ(oil.source.publisher, "A monitor");
    EXPECT_EQ(oil.source.licenceURL, "https://example.org/terms");
    EXPECT_EQ(oil.source.attribution, "Oil by a monitor.");
    const Description::Table& locations = *description.table(TableRole::npriLocations);
    EXPECT_EQ(locations.source.attribution, "From an inventory.");
    EXPECT_EQ(locations.omitted.at("9999"), "invented twice");
    EXPECT_EQ(description.categories.size(), 9U);
}

TEST(Description, OfThePackagedReleaseIsRead) {
    const Description description =
        readDescription("canada-energy.toml", contentOf(VASKER_DESCRIPTION));
    EXPECT_EQ(description.tables.size(), tableRoles().size());
    EXPECT_TRUE(description.isSelectedIndustry("211110"));
    EXPECT_FALSE(description.isSelectedIndustry("213119"));
    EXPECT_TRUE(description.isSelectedSector("9"));
    EXPECT_FALSE(description.isSelectedSector("1"));
}

TEST(Description, ATableThatPackingCanDoWithoutMayBeMissing) {
    const std::size_t place = fixture().find("[table.ghgrp-petrinex]");
    const std::size_t end = fixture().find("[table.ghgrp-links]");
    const Description description =
        readDescription("d.toml", fixture().substr(0, place) + fixture().substr(end));
    EXPECT_EQ(description.table(TableRole::ghgrpPetrinex), nullptr);
}

TEST(Description, NamesLineAndFieldOfWhatIsMissing) {
    expectRefusal(
        "coverage = \"Invented energy infrastructure\"\n", "", "d.toml:1: coverage: missing");
    expectRefusal(
        "routes-period = \"7 April 2026\"\nmodifications = \"Filtered.\"\n\n[table.gem-gas",
        "modifications = \"Filtered.\"\n\n[table.gem-gas",
        "d.toml:" + lineOf(fixture(), "[table.gem-oil-pipelines]") +
            ": table.gem-oil-pipelines.routes-period: missing");
    expectRefusal("[table.gem-lng-terminals]",
                  "[table.gem-terminals]",
                  "d.toml:" + lineOf(fixture(), "[table.npri-facilities]") +
                      ": table.gem-lng-terminals: missing");
    expectRefusal("period = \"2024\"\n",
                  "",
                  "d.toml:" + lineOf(fixture(), "[table.npri-locations]") +
                      ": table.npri-locations.period: missing");
}

TEST(Description, NamesLineAndFieldOfWhatIsUnknownAndWhatWasMeant) {
    expectRefusal(
        "coverage =", "coverege =", "d.toml:LINE: coverege: unknown field, did you mean coverage?");
    expectRefusal("period = \"2024\"",
                  "perod = \"2024\"",
                  "d.toml:LINE: table.npri-locations.perod: unknown field, did you mean period?");
    expectRefusal("[table.ghgrp-links]",
                  "[table.ghgrp-link]",
                  "d.toml:LINE: table.ghgrp-link: unknown table, did you mean ghgrp-links?");
    expectRefusal("words = [\"Terminal\"]",
                  "word = [\"Terminal\"]",
                  "d.toml:LINE: category.names.word: unknown field, did you mean words?");
    expectRefusal(
        "dataset = \"gem-goit-pipelines\"",
        "dataset = \"gem-goit-pipeline\"",
        "d.toml:LINE: table.gem-oil-pipelines.dataset: \"gem-goit-pipeline\" is no dataset "
        "of a release, did you mean gem-goit-pipelines?");
    expectRefusal("publisher = \"monitor\"\ndataset = \"gem-goit-pipelines\"",
                  "publisher = \"moniter\"\ndataset = \"gem-goit-pipelines\"",
                  "d.toml:LINE: table.gem-oil-pipelines.publisher: there is no table "
                  "publisher.moniter");
}

TEST(Description, RefusesValuesThatAReleaseCannotHold) {
    expectRefusal(
        "page = \"https://example.org/oil\"",
        "page = \"http://example.org/oil\"",
        "d.toml:LINE: table.gem-oil-pipelines.page: \"http://example.org/oil\" is no https "
        "address");
    expectRefusal("attribution = \"Oil by a monitor.\"",
                  "attribution = \"  \"",
                  "d.toml:LINE: table.gem-oil-pipelines.attribution: the text is empty");
    expectRefusal("period = \"March 2025\"",
                  "period = 2025",
                  "d.toml:LINE: table.gem-oil-pipelines.period: a text in quotes is needed");
    expectRefusal("limitations = [\"\"\"Nothing here\n    is real.\"\"\"]",
                  "limitations = []",
                  "d.toml:LINE: limitations: at least one text is needed");
    expectRefusal("sectors = [\"16\"]",
                  "sectors = \"16\"",
                  "d.toml:LINE: selection.sectors: a list in brackets is needed");
    expectRefusal(
        "modifications = \"Media added together.\"",
        "modifications = \"Media added together.\"\nroutes = 7\nomit = 7",
        "d.toml:" + std::to_string(std::stoi(lineOf(fixture(), "modifications = \"Media")) + 2) +
            ": table.npri-releases.omit: a table is needed");
}

TEST(Description, TheColumnOfATableSaysItsPeriod) {
    expectRefusal(
        "file = \"npri_facilities.csv\"",
        "file = \"npri_facilities.csv\"\nperiod = \"2016\"",
        "d.toml:" +
            std::to_string(std::stoi(lineOf(fixture(), "file = \"npri_facilities.csv\"")) + 1) +
            ": table.npri-facilities.period: a column of this table says it");
}

TEST(Description, TheLastRuleOfTheCategoriesTakesEverything) {
    expectRefusal(
        "[[category.rest]]\nkind = \"processing\"\n",
        "",
        "d.toml:" + lineOf(fixture(), "[[category.rest]]\nkind = \"compressor_station\"") +
            ": category.rest: the last rule has to take every facility");
}

TEST(Description, NamesTheLineOfWhatIsNoToml) {
    try {
        (void)readDescription("d.toml", "release = \"a\"\ncoverage = b\n");
        FAIL();
    } catch (const InputError& error) {
        EXPECT_TRUE(std::string_view(error.what()).starts_with("d.toml:2: ")) << error.what();
    }
}

TEST(Description, NamesTheLineOfATableWithoutAName) {
    for (const std::string header : {"[]", "[#]", "[=]", "[[.]]", "[a.]", "[a..b]", "[a.#]"}) {
        try {
            (void)readDescription("d.toml", "release = \"a\"\n" + header + "\n");
            FAIL() << header;
        } catch (const InputError& error) {
            EXPECT_TRUE(std::string_view(error.what()).starts_with("d.toml:2: ")) << error.what();
        }
    }
}

TEST(Description, NamesTheLineOfTypographicQuotes) {
    const std::string text = replaced(
        fixture(), "coverage = \"Invented energy infrastructure\"", "coverage = “Invented”");
    try {
        (void)readDescription("d.toml", text);
        FAIL();
    } catch (const InputError& error) {
        const std::string_view message = error.what();
        EXPECT_TRUE(message.starts_with("d.toml:3: ")) << message;
        EXPECT_TRUE(message.ends_with("(a letter or quotation mark beyond ASCII?)")) << message;
    }
}

TEST(Description, TextsAndCommentsHoldAnyCharacter) {
    const auto coverage = [](const std::string& line) {
        return readDescription(
                   "d.toml",
                   replaced(fixture(), "coverage = \"Invented energy infrastructure\"", line))
            .coverageName;
    };
    EXPECT_EQ(coverage("coverage = 'Énergie \"du Nord\"' # à venir"), "Énergie \"du Nord\"");
    EXPECT_EQ(coverage("coverage = \"© at@home @40 – \\u00e9\""), "© at@home @40 – é");
    EXPECT_EQ(coverage("coverage = \"\"\"a \\\n   é\"\"\""), "a é");
}

TEST(Description, IsUtf8) {
    try {
        (void)readDescription("d.toml", "release = \"\xE9\"\n");
        FAIL();
    } catch (const InputError& error) {
        EXPECT_STREQ(error.what(), "d.toml: the text is not UTF-8");
    }
}

} // namespace
} // namespace vasker
