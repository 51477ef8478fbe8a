#include "detail/OpenMapCredit.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(OpenMapCredit, TellsTheSourcesFourTextsAsStored) {
    OpenMapRelease::Source source = makeSource();
    source.publisher = " <b>Environment</b>\n";
    source.conditions = "\u202Ereversed\u200B";
    const OpenMapCredit credit = OpenMapCredit::of(source);
    EXPECT_EQ(credit.publisher.toStdString(), " <b>Environment</b>\n");
    EXPECT_EQ(credit.attribution.toStdString(),
              "Contains information licensed under an open licence.");
    EXPECT_EQ(credit.conditions.toStdString(), "\u202Ereversed\u200B");
    EXPECT_EQ(credit.modifications.toStdString(), "Selected columns");
}

TEST(OpenMapCredit, LinksToTheDatasetAndToItsLicence) {
    const OpenMapCredit credit = OpenMapCredit::of(makeSource());
    EXPECT_EQ(credit.sourceLink, QStringLiteral("https://data.example.ca/npri"));
    EXPECT_EQ(credit.licenceLink, QStringLiteral("https://open.example.ca/licence"));
}

TEST(OpenMapCredit, HasNoLinkFromAnAddressThatDoesNotParse) {
    OpenMapRelease::Source source = makeSource();
    source.licenceURL = "https://[";
    EXPECT_EQ(OpenMapCredit::of(source).licenceLink, std::nullopt);
    EXPECT_EQ(OpenMapCredit::of(source).licenceAddress(), QString());
    EXPECT_EQ(OpenMapCredit::of(source).sourceLink, QStringLiteral("https://data.example.ca/npri"));

    std::swap(source.licenceURL, source.sourceURL);
    EXPECT_EQ(OpenMapCredit::of(source).sourceLink, std::nullopt);
    EXPECT_NE(OpenMapCredit::of(source).licenceLink, std::nullopt);
}

TEST(OpenMapCredit, HasNoLinkFromAnEmptyAddress) {
    EXPECT_EQ(linkAddress(""), std::nullopt);
}

TEST(OpenMapCredit, LinksToWhateverTheParserAccepts) {
    EXPECT_EQ(linkAddress("ftp://example.ca/a"), QStringLiteral("ftp://example.ca/a"));
    EXPECT_EQ(linkAddress("report"), QStringLiteral("report"));
    EXPECT_EQ(linkAddress("https://example.ca/a b"), QStringLiteral("https://example.ca/a%20b"));
}

TEST(OpenMapCredit, ShowsAnAddressInPlainAscii) {
    EXPECT_EQ(linkAddress("https://qu\u00E9bec.example/\u202Etxt"),
              QStringLiteral("https://xn--qubec-csa.example/%E2%80%AEtxt"));
}

TEST(OpenMapCredit, KeepsItsTextsWhereTheyAreEmpty) {
    OpenMapRelease::Source source = makeSource();
    source.modifications.clear();
    EXPECT_EQ(OpenMapCredit::of(source).modifications, QString());
}

TEST(OpenMapCredit, OfLongListsOnlyTheFirstAreLaidOutAtOnce) {
    const OpenMapCredit one = OpenMapCredit::of(makeSource());
    EXPECT_EQ(promptCount({}), 0);
    EXPECT_EQ(promptCount({one, one}), 2);
    EXPECT_EQ(promptCount(std::vector<OpenMapCredit>(100, one)), 7);
    for (QString OpenMapCredit::*text : {&OpenMapCredit::publisher,
                                         &OpenMapCredit::attribution,
                                         &OpenMapCredit::conditions,
                                         &OpenMapCredit::modifications}) {
        OpenMapCredit huge = one;
        huge.*text = QString(3'000, QLatin1Char('a'));
        EXPECT_EQ(promptCount({huge, one}), 1);
    }
}

} // namespace
} // namespace vasker
