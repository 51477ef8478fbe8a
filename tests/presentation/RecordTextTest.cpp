#include "presentation/RecordText.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(RecordText, ACategoryHasItsLabelAndAnUnknownOneIsCapitalised) {
    EXPECT_EQ(categoryText("gas_plant"), QStringLiteral("Gas plant"));
    EXPECT_EQ(categoryText("compressor_station"), QStringLiteral("Compressor_station"));
    EXPECT_EQ(categoryText(""), QString());
}

TEST(RecordText, ACategoryIsNotCutAtAZeroCharacter) {
    EXPECT_EQ(categoryText(std::string_view("a\0b", 3)).size(), 3);
}

TEST(RecordText, LinesJoinTheirPartsByADot) {
    const OpenMapRelease::Asset asset = makeAsset();
    EXPECT_EQ(categoryLine(asset), QStringLiteral("Gas plant · 2016"));
    EXPECT_EQ(recordSubtitle(asset), QStringLiteral("Gas plant · A-0"));
    EXPECT_EQ(sourceLine(makeSource(), makeFact()), QStringLiteral("NPRI · 2016"));
}

TEST(RecordText, TextsOfTheReleaseStandUnchanged) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.id = asset.asOf = " <b>%1</b>\n&amp; %2 ";
    const QString same = QStringLiteral(" <b>%1</b>\n&amp; %2 ");
    EXPECT_EQ(categoryLine(asset), QStringLiteral("Gas plant · ") + same);
    EXPECT_EQ(recordSubtitle(asset), QStringLiteral("Gas plant · ") + same);
}

TEST(RecordText, EveryMandatoryLineBreakIsALineFeed) {
    const QString lines = QStringLiteral("a\nb");
    for (const char* const text : {"a\nb",
                                   "a\rb",
                                   "a\r\nb",
                                   "a\x0B"
                                   "b",
                                   "a\x0C"
                                   "b",
                                   "a\u0085b",
                                   "a\u2028b",
                                   "a\u2029b"}) {
        EXPECT_EQ(wholeText(text), lines);
        EXPECT_EQ(lineText(text), lines);
        EXPECT_EQ(nameText(text), lines);
    }
    EXPECT_EQ(wholeText("a\n\rb\tc"), QStringLiteral("a\n\nb\tc"));
    OpenMapRelease::Asset asset = makeAsset();
    asset.kind = asset.id = asset.asOf = "X\u2029y";
    EXPECT_EQ(categoryLine(asset), QStringLiteral("X\nY · X\ny"));
    EXPECT_EQ(recordSubtitle(asset), QStringLiteral("X\nY · X\ny"));
}

TEST(RecordText, PlacesOfALineOrTwoHaveABound) {
    const std::string longest(mostLineBytes, 'a');
    EXPECT_EQ(lineText(longest.substr(1)).size(), 9'999);
    EXPECT_EQ(lineText(longest).size(), 10'000);
    EXPECT_EQ(lineText(longest + "b"), toQString(longest) + QChar(u'…'));
    EXPECT_EQ(lineText(longest.substr(1) + "é"), toQString(longest.substr(1)) + QChar(u'…'));
    EXPECT_EQ(nameText(std::string(mostNameBytes, 'a')).back(), QChar(u'a'));
    EXPECT_EQ(nameText(std::string(1'000'000, 'a')).size(), 40'001);
    OpenMapRelease::Asset asset = makeAsset();
    asset.kind = asset.id = asset.asOf = std::string(1'000'000, 'x');
    EXPECT_EQ(categoryText(asset.kind).size(), 10'001);
    EXPECT_LT(categoryLine(asset).size(), 21'000);
}

TEST(RecordText, WhatAUserReadsIsWhole) {
    for (const std::size_t length : {std::size_t{9'999},
                                     mostLineBytes,
                                     mostLineBytes + 1,
                                     mostNameBytes,
                                     mostNameBytes + 1,
                                     std::size_t{1'000'000}}) {
        const auto size = static_cast<qsizetype>(length);
        OpenMapRelease::Asset asset = makeAsset();
        asset.kind = asset.id = std::string(length, 'x');
        OpenMapRelease::Fact fact = makeFact();
        fact.asOf = asset.id;
        EXPECT_EQ(wholeText(asset.id).size(), size);
        EXPECT_EQ(recordSubtitle(asset).size(), size + 3 + size);
        EXPECT_EQ(sourceLine(makeSource(), fact), QStringLiteral("NPRI · ") + toQString(fact.asOf));
    }
}

} // namespace
} // namespace vasker
