#include "detail/OpenMapInspector.h"

#include "detail/ReleaseRecord.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

OpenMapInspector inspected(const OpenMapRelease& release, std::size_t asset = 0) {
    return OpenMapInspector::of(release, release.assets.at(asset));
}

// Two sources, A before B, and the first record.
OpenMapRelease releaseOfTwoSources() {
    OpenMapRelease release = makeRelease();
    release.sources = {makeSource(0), makeSource(1)};
    release.sources[0].publisher = "A";
    release.sources[1].publisher = "B";
    release.sources[1].dataset = "gem-goit-pipelines";
    return release;
}

std::string publishers(const OpenMapInspector& inspector) {
    std::string all;
    for (const OpenMapCredit& credit : inspector.credits) {
        all += credit.publisher.toStdString() + ' ';
    }
    return all;
}

TEST(OpenMapInspector, TellsNameCategoryAndIdPeriodAndStatus) {
    const OpenMapInspector inspector = inspected(makeRelease());
    EXPECT_EQ(inspector.name, QStringLiteral("Plant 0"));
    EXPECT_EQ(inspector.subtitle, QStringLiteral("Gas plant · A-0"));
    EXPECT_EQ(inspector.period, QStringLiteral("2016"));
    EXPECT_EQ(inspector.status, QStringLiteral("Reported"));
    EXPECT_EQ(inspector.caveat,
              QStringLiteral("Company and status describe the cited release. They do not establish "
                             "the current operator or current operation."));
}

TEST(OpenMapInspector, TellsTheCompanyOnlyWhereThereIsOne) {
    OpenMapRelease release = makeRelease();
    EXPECT_EQ(inspected(release).company, QStringLiteral("Prairie Gas"));
    release.assets[0].reportedCompany.reset();
    EXPECT_FALSE(inspected(release).hasCompany());
}

TEST(OpenMapInspector, MarksTheOneTextThatTheRecordWasFoundBy) {
    OpenMapRelease release = makeRelease();
    release.assets[0].facts = {makeFact("a"), makeFact("b")};
    const auto marks = [&](const std::optional<SearchedText>& found) {
        const auto made = OpenMapInspector::of(release, release.assets[0], found);
        return std::vector<bool>{
            made.idFound, made.companyFound, made.facts[0].found, made.facts[1].found};
    };
    using Field = SearchedText::Field;
    EXPECT_EQ(marks({}), (std::vector<bool>{false, false, false, false}));
    EXPECT_EQ(marks(SearchedText{Field::name, 0, {}}),
              (std::vector<bool>{false, false, false, false}));
    EXPECT_EQ(marks(SearchedText{Field::id, 0, {}}),
              (std::vector<bool>{true, false, false, false}));
    EXPECT_EQ(marks(SearchedText{Field::company, 0, {}}),
              (std::vector<bool>{false, true, false, false}));
    EXPECT_EQ(marks(SearchedText{Field::fact, 1, {}}),
              (std::vector<bool>{false, false, false, true}));
}

TEST(OpenMapInspector, HasARowForACompanyWhoseNameIsEmpty) {
    OpenMapRelease release = makeRelease();
    release.assets[0].reportedCompany = "";
    EXPECT_TRUE(inspected(release).hasCompany());
    EXPECT_EQ(inspected(release).companyName(), QString());
}

TEST(OpenMapInspector, ShowsTextsOfTheReleaseAsStored) {
    OpenMapRelease release = makeRelease();
    const std::string hostile = " <b>%1</b>\n\u202E\u200Ba\u0301\u0301 &amp; %2 ";
    OpenMapRelease::Asset& asset = release.assets[0];
    asset.name = asset.id = asset.status = asset.asOf = hostile;
    asset.reportedCompany = hostile;
    asset.facts[0].label = asset.facts[0].value = asset.facts[0].asOf = hostile;
    const OpenMapInspector inspector = inspected(release);
    const QString same = QString::fromStdString(hostile);
    EXPECT_EQ(inspector.name, same);
    EXPECT_EQ(inspector.subtitle, QStringLiteral("Gas plant · ") + same);
    EXPECT_EQ(inspector.period, same);
    EXPECT_EQ(inspector.status, same);
    EXPECT_EQ(inspector.company, same);
    EXPECT_EQ(inspector.facts[0].label, same);
    EXPECT_EQ(inspector.facts[0].value, same);
    EXPECT_EQ(inspector.facts[0].linkTitle(), QStringLiteral("NPRI · ") + same);
}

TEST(OpenMapInspector, ShowsTextsOfAnyLengthWhole) {
    OpenMapRelease release = makeRelease();
    OpenMapRelease::Asset& asset = release.assets[0];
    asset.id = asset.status = asset.asOf = std::string(1'000'000, 'x');
    asset.reportedCompany = asset.id;
    asset.name = "a"; // one character
    for (int marks = 0; marks < 500'000; ++marks) {
        asset.name += "\u0301";
    }
    const OpenMapInspector inspector = inspected(release);
    const QString whole(1'000'000, u'x');
    EXPECT_EQ(inspector.subtitle, QStringLiteral("Gas plant · ") + whole);
    EXPECT_EQ(inspector.period, whole);
    EXPECT_EQ(inspector.status, whole);
    EXPECT_EQ(inspector.company, whole);
    EXPECT_EQ(inspector.name.toStdString(), asset.name);
}

TEST(OpenMapInspector, KeepsATextBeyondAZeroCharacter) {
    OpenMapRelease release = makeRelease();
    release.assets[0].kind = std::string("a\0b", 3);
    release.assets[0].name = std::string("c\0d", 3);
    const OpenMapInspector inspector = inspected(release);
    EXPECT_EQ(inspector.name.size(), 3);
    EXPECT_EQ(inspector.subtitle.size(), 3 + 3 + 3);
}

TEST(OpenMapInspector, ShowsAnUnknownCategoryCapitalisedAndAnEmptyOneEmpty) {
    OpenMapRelease release = makeRelease();
    release.assets[0].kind = "compressor_station";
    EXPECT_EQ(inspected(release).subtitle, QStringLiteral("Compressor_station · A-0"));
    release.assets[0].kind = "";
    EXPECT_EQ(inspected(release).subtitle, QStringLiteral(" · A-0"));
}

TEST(OpenMapInspector, TellsFactsInOrderEachWithItsOwnPeriodAndPublisher) {
    OpenMapRelease release = releaseOfTwoSources();
    release.assets[0].facts = {makeFact("first"), makeFact("second")};
    release.assets[0].facts[1].sourceID = sourceID(1);
    release.assets[0].facts[1].asOf = "March 2025 release";
    const auto& facts = inspected(release).facts;
    ASSERT_EQ(facts.size(), 2U);
    EXPECT_EQ(facts[0].label, QStringLiteral("Sulphur dioxide"));
    EXPECT_EQ(facts[0].value, QStringLiteral("first"));
    EXPECT_EQ(facts[0].spokenText(), QStringLiteral("Sulphur dioxide, first"));
    EXPECT_EQ(facts[0].linkTitle(), QStringLiteral("NPRI · 2016"));
    EXPECT_EQ(facts[0].linkAddress(), QStringLiteral("https://data.example.ca/npri"));
    EXPECT_EQ(facts[1].value, QStringLiteral("second"));
    EXPECT_EQ(facts[1].linkTitle(), QStringLiteral("GEM oil/NGL pipelines · March 2025 release"));
}

TEST(OpenMapInspector, ShowsALabelInEnglishAsStored) {
    OpenMapRelease release = makeRelease();
    release.assets[0].facts.assign(3, makeFact());
    release.assets[0].facts[0].label = "NPRI ID";
    release.assets[0].facts[1].label = "Name in the report for 2022";
    release.assets[0].facts[2].label = "Total emissions of G10813";
    const auto& facts = inspected(release).facts;
    EXPECT_EQ(facts[0].label, QStringLiteral("NPRI ID"));
    EXPECT_EQ(facts[1].label, QStringLiteral("Name in the report for 2022"));
    EXPECT_EQ(facts[2].label, QStringLiteral("Total emissions of G10813"));
}

TEST(OpenMapInspector, TellsTwoEqualFactsBoth) {
    OpenMapRelease release = makeRelease();
    release.assets[0].facts = {makeFact(), makeFact()};
    const OpenMapInspector inspector = inspected(release);
    ASSERT_EQ(inspector.facts.size(), 2U);
    EXPECT_EQ(inspector.facts[0], inspector.facts[1]);
    EXPECT_EQ(inspector.factList().size(), 2);
}

TEST(OpenMapInspector, ShowsAFactWithoutLinkWhereTheAddressDoesNotParse) {
    OpenMapRelease release = makeRelease();
    release.sources[0].sourceURL = "https://[";
    const OpenMapFact fact = inspected(release).facts.at(0);
    EXPECT_EQ(fact.label, QStringLiteral("Sulphur dioxide"));
    EXPECT_EQ(fact.value, QStringLiteral("12.5 t"));
    EXPECT_EQ(fact.link, std::nullopt);
    EXPECT_EQ(fact.linkTitle(), QString());
}

TEST(OpenMapInspector, ShowsAFactWithoutLinkWhereTheSourceIsUnknown) {
    OpenMapRelease release = makeRelease();
    release.assets[0].facts[0].sourceID = sourceID(7);
    EXPECT_EQ(inspected(release).facts.at(0).link, std::nullopt);
    EXPECT_EQ(inspected(release).credits.size(), 1U);
}

TEST(OpenMapInspector, CreditsASourceOnceHoweverOftenItIsCited) {
    OpenMapRelease release = releaseOfTwoSources();
    release.assets[0].facts = {makeFact(), makeFact(), makeFact()};
    EXPECT_EQ(publishers(inspected(release)), "A ");
}

TEST(OpenMapInspector, CreditsSourcesInTheOrderOfTheRelease) {
    OpenMapRelease release = releaseOfTwoSources();
    release.assets[0].sourceID = sourceID(1);
    EXPECT_EQ(publishers(inspected(release)), "A B ");
}

TEST(OpenMapInspector, ComparesSourceIdsExactly) {
    OpenMapRelease release = releaseOfTwoSources();
    release.assets[0].sourceID = std::string(63, 'A') + "1";
    release.assets[0].facts.clear();
    EXPECT_EQ(publishers(inspected(release)), "");
}

TEST(OpenMapInspector, WithoutFactsAndKnownSourcesHasNoRowsForThem) {
    OpenMapRelease release = makeRelease();
    release.assets[0].facts.clear();
    release.assets[0].sourceID = "nobody";
    EXPECT_TRUE(inspected(release).facts.empty());
    EXPECT_TRUE(inspected(release).credits.empty());
    EXPECT_EQ(inspected(release).promptFacts(), 0);
}

TEST(OpenMapInspector, SaysWhatTheLocationMeans) {
    EXPECT_EQ(inspected(makeRelease(), 0).location,
              QStringLiteral("Publisher-reported location. Equipment position, physical-site "
                             "boundary and survey precision are not established."));
    EXPECT_EQ(inspected(makeRelease(), 1).location,
              QStringLiteral("Route vertices from the cited GEM release. No inferred connections "
                             "are drawn."));
}

TEST(OpenMapInspector, OfHugeFactsOnlyTheFirstIsLaidOutAtOnce) {
    OpenMapRelease release = makeRelease();
    release.assets[0].facts.assign(50, makeFact(std::string(10'000, 'x')));
    EXPECT_EQ(inspected(release).promptFacts(), 1);
    release.assets[0].facts.assign(50, makeFact());
    EXPECT_EQ(inspected(release).promptFacts(), 7);
    release.assets[0].facts.assign(5, makeFact());
    EXPECT_EQ(inspected(release).promptFacts(), 5);
}

TEST(OpenMapInspector, LaysOutAtOnceOnlyTheCreditsThatHaveRoomBelowItsFacts) {
    OpenMapRelease release = releaseOfTwoSources();
    auto& facts = release.assets[0].facts;
    const auto promptCreditsWith = [&](std::size_t count) {
        facts.assign(count, makeFact());
        facts.back().sourceID = sourceID(1);
        return inspected(release).promptCredits();
    };
    EXPECT_EQ(promptCreditsWith(2), 2);
    EXPECT_EQ(promptCreditsWith(4), 2);
    EXPECT_EQ(promptCreditsWith(5), 1);
    EXPECT_EQ(promptCreditsWith(6), 1);
    EXPECT_EQ(promptCreditsWith(7), 0);
    EXPECT_EQ(promptCreditsWith(50), 0);
}

TEST(ReleaseRecord, IsEmptyWithoutReleaseAndWithoutRecord) {
    const auto release = std::make_shared<const OpenMapRelease>(makeRelease());
    EXPECT_EQ(ReleaseRecord{}.record(), nullptr);
    EXPECT_EQ(ReleaseRecord{}.inspector().name, QString());
    EXPECT_EQ(ReleaseRecord{}.sources().coverageName, QString());
    EXPECT_EQ((ReleaseRecord{release, {}}.record()), nullptr);
    EXPECT_EQ((ReleaseRecord{release, 2}.record()), nullptr);
    EXPECT_EQ((ReleaseRecord{{}, 0}.record()), nullptr);
    EXPECT_EQ((ReleaseRecord{release, 1}.inspector().name), QStringLiteral("Plant 1"));
}

} // namespace
} // namespace vasker
