#include "map/catalogue/FoundText.h"

#include "data/text/CaseFolding.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <memory>

namespace vasker {
namespace {

OpenMapRelease::Asset assetWith(std::string label, std::string value) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.facts = {makeFact(std::move(value))};
    asset.facts[0].label = std::move(label);
    return asset;
}

FoundText found(OpenMapRelease::Asset asset, const char* query, const char* locale = "en") {
    auto release = std::make_shared<OpenMapRelease>(makeRelease());
    release->assets = {std::move(asset)};
    const ReleaseIndex index(std::move(release), TextLocale(locale));
    return FoundText::of(index, 0, folded(query, index.locale()));
}

std::string line(OpenMapRelease::Asset asset, const char* query, const char* locale = "en") {
    return found(std::move(asset), query, locale).markup.toStdString();
}

TEST(FoundText, NamesTheFieldAndShowsItsValueWithTheMatchInBold) {
    EXPECT_EQ(line(makeAsset(), "a-0"), "Id: <b>A-0</b>");
    EXPECT_EQ(line(makeAsset(), "PRAIRIE"), "Reporting company: <b>Prairie</b> Gas");
    EXPECT_EQ(line(makeAsset(), "bert"), "Jurisdiction: Al<b>bert</b>a");
    EXPECT_EQ(line(assetWith("Owner", "Coastal GasLink"), "gaslink"),
              "Owner: Coastal <b>GasLink</b>");
}

TEST(FoundText, IsASentenceForAssistiveTools) {
    EXPECT_EQ(found(makeAsset(), "prairie").spoken,
              QStringLiteral("Found in Reporting company: Prairie Gas"));
}

TEST(FoundText, SaysNothingWhereTheNameHoldsTheQuery) {
    EXPECT_EQ(line(assetWith("Owner", "Plant 0 Ltd."), "plant 0"), "");
    EXPECT_EQ(found(assetWith("Owner", "Plant 0 Ltd."), "plant 0").spoken, QString());
}

TEST(FoundText, SaysNothingWithoutAQueryOrAMatch) {
    EXPECT_EQ(line(makeAsset(), ""), "");
    EXPECT_EQ(line(makeAsset(), "coal"), "");
}

TEST(FoundText, IsNeverFoundAcrossTwoFields) {
    EXPECT_EQ(line(makeAsset(), "A-0Prairie"), "");
    EXPECT_EQ(line(makeAsset(), "GasAlberta"), "");
}

TEST(FoundText, TheFirstFieldCounts) {
    EXPECT_EQ(line(assetWith("Owner", "Alberta Gas"), "alberta"), "Jurisdiction: <b>Alberta</b>");
}

TEST(FoundText, NeitherLabelsNorThePeriodAreSearched) {
    EXPECT_EQ(line(assetWith("Owner", "Coastal"), "owner"), "");
    EXPECT_EQ(line(assetWith("Owner", "Coastal"), "2016"), "");
}

TEST(FoundText, AccentsCountAndCharactersStayWhole) {
    EXPECT_EQ(line(assetWith("City", "Montréal"), "montreal"), "");
    EXPECT_EQ(line(assetWith("City", "Montre\u0301al"), "MONTRÉ"), "City: <b>Montre\u0301</b>al");
    EXPECT_EQ(line(assetWith("City", "a👩‍🔧b"), "👩‍🔧"),
              "City: a<b>👩‍🔧</b>b");
}

TEST(FoundText, ACharacterThatFoldsToSeveralIsBoldAsAWhole) {
    EXPECT_EQ(line(assetWith("Street", "Hauptstraße 5"), "STRASSE"),
              "Street: Haupt<b>straße</b> 5");
    EXPECT_EQ(line(assetWith("Office", "The o\uFB03ce"), "office"), "Office: The <b>o\uFB03ce</b>");
    EXPECT_EQ(line(assetWith("City", "DIŞ İş"), "iş", "tr"), "City: DIŞ <b>İş</b>");
}

TEST(FoundText, ALongValueIsCutAroundTheMatch) {
    EXPECT_EQ(line(assetWith("Owner",
                             "TC Energy Corporation of Calgary, Coastal GasLink Limited "
                             "Partnership and twenty communities"),
                   "coastal gaslink"),
              "Owner: …of Calgary, <b>Coastal GasLink</b>…");
    EXPECT_EQ(
        line(assetWith("Note", std::string(9'000, 'x') + " oil " + std::string(900, 'y')), "oil"),
        "Note: …xxxxxxxxxxx <b>oil</b>…");
}

TEST(FoundText, AValueEndsAfterAWordWhereThereIsOne) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.reportedCompany = "Pembina Pipeline Corporation";
    EXPECT_EQ(line(asset, "pembina"), "Reporting company: <b>Pembina</b> Pipeline…");
    EXPECT_EQ(line(assetWith("Note", "oil" + std::string(60, 'y')), "oil"),
              "Note: <b>oil</b>" + std::string(27, 'y') + "…");
}

TEST(FoundText, AValueIsCutBeforeAWordWhereThereIsOne) {
    EXPECT_EQ(line(assetWith("Fuel source", "Receives transformation via Coastal"), "coastal"),
              "Fuel source: …via <b>Coastal</b>");
}

TEST(FoundText, AValueIsCutBetweenCharacters) {
    const std::string text = "e\u0301";
    std::string value;
    for (int each = 0; each < 40; ++each) {
        value += text;
    }
    std::string twelve;
    for (int each = 0; each < 12; ++each) {
        twelve += text;
    }
    EXPECT_TRUE(line(assetWith("A", value + "oil"), "oil").ends_with("…" + twelve + "<b>oil</b>"));
}

TEST(FoundText, ALongMatchAndALongLabelAreCut) {
    const std::string query(300, 'x');
    EXPECT_EQ(line(assetWith(std::string(50, 'L'), query), query.c_str()),
              std::string(32, 'L') + "…: <b>" + std::string(60, 'x') + "…</b>");
}

TEST(FoundText, ACharacterOfManyMarksLeavesALineOfBoundedLength) {
    std::string marks = "a";
    for (int each = 0; each < 5'000; ++each) {
        marks += "\u0301";
    }
    EXPECT_EQ(line(assetWith("A", marks + " oil " + marks), "oil"), "A: … <b>oil</b>…");
}

TEST(FoundText, AValueTooLongToSearchIsCutToItsBeginning) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.reportedCompany = "Gas " + std::string(100'000, 'x') + " coal";
    EXPECT_EQ(line(asset, "coal"), "Reporting company: <b></b>Gas…");
}

TEST(FoundText, WhatTheReleaseSaysIsShownLiterallyInOneLine) {
    EXPECT_EQ(line(assetWith("<i>%1</i>", "a &\n<c>\t%2 oil"), "oil"),
              "&lt;i&gt;%1&lt;/i&gt;: a &amp; &lt;c&gt; %2 <b>oil</b>");
}

} // namespace
} // namespace vasker
