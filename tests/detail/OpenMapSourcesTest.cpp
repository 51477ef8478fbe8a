#include "detail/OpenMapSources.h"

#include "tests/support/ReleaseBuilder.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <array>

namespace vasker {
namespace {

std::string identityOf(std::string generatedAt) {
    OpenMapRelease release = makeRelease();
    release.generatedAt = std::move(generatedAt);
    return OpenMapSources::of(release).identity.toStdString();
}

/// Sets every text in capitals.
class Capitals : public QTranslator {
  public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/,
                                    const char* text,
                                    const char* /*disambiguation*/,
                                    int /*n*/) const override {
        return QString::fromUtf8(text).toUpper();
    }
};

TEST(OpenMapSources, TellsWhatTheReleaseIs) {
    const OpenMapSources sources = OpenMapSources::of(makeRelease());
    EXPECT_EQ(sources.coverageName, QStringLiteral("Canada"));
    EXPECT_EQ(sources.counts, QStringLiteral("2 records · 1 routes"));
    EXPECT_EQ(sources.identity, QStringLiteral("2025.1 · packaged 2025-11-20"));
    EXPECT_EQ(sources.note,
              QStringLiteral("The packaged date is not the observation date. Each record shows its "
                             "source period."));
}

TEST(OpenMapSources, CountsRecordsAndRoutesWithoutGrouping) {
    OpenMapRelease release = makeRelease();
    release.assets.assign(1204, makeAsset());
    for (std::size_t at = 0; at < 37; ++at) {
        release.assets[at * 3].routes = {makeRoute()};
    }
    EXPECT_EQ(OpenMapSources::of(release).counts, QStringLiteral("1204 records · 37 routes"));
}

TEST(OpenMapSources, CountsNoRoutesAsZero) {
    OpenMapRelease release = makeRelease();
    release.assets.pop_back();
    EXPECT_EQ(OpenMapSources::of(release).counts, QStringLiteral("1 records · 0 routes"));
}

TEST(OpenMapSources, ShowsTheFirstTenCharactersOfThePackagingTime) {
    EXPECT_EQ(identityOf("2025-01-31T12:00:00Z"), "2025.1 · packaged 2025-01-31");
    EXPECT_EQ(identityOf("2025"), "2025.1 · packaged 2025");
    EXPECT_EQ(identityOf(""), "2025.1 · packaged ");
    EXPECT_EQ(identityOf("\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600"
                         "\U0001F600\U0001F600\U0001F600\U0001F600 etc."),
              "2025.1 · packaged \U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600"
              "\U0001F600\U0001F600\U0001F600\U0001F600");
}

TEST(OpenMapSources, ShowsAReleaseIdWithPlaceholdersAsStored) {
    OpenMapRelease release = makeRelease();
    release.releaseID = "%2 %1";
    EXPECT_EQ(OpenMapSources::of(release).identity, QStringLiteral("%2 %1 · packaged 2025-11-20"));
}

TEST(OpenMapSources, ListsLimitationsInOrderAndAsStored) {
    OpenMapRelease release = makeRelease();
    release.limitations = {"b <i>", "a", "a"};
    EXPECT_EQ(OpenMapSources::of(release).limitations.join(QLatin1Char('|')),
              QStringLiteral("b <i>|a|a"));
    release.limitations.clear();
    EXPECT_TRUE(OpenMapSources::of(release).limitations.isEmpty());
}

TEST(OpenMapSources, ShowsTextsOfAnyLengthWhole) {
    const std::string endless(1'000'000, 'x');
    const QString whole(1'000'000, u'x');
    OpenMapRelease release = makeRelease();
    release.coverageName = release.releaseID = release.limitations.front() = endless;
    release.sources.front().publisher = release.sources.front().attribution = endless;
    release.sources.front().conditions = release.sources.front().modifications = endless;
    const OpenMapSources sources = OpenMapSources::of(release);
    EXPECT_EQ(sources.coverageName, whole);
    EXPECT_EQ(sources.identity, whole + QStringLiteral(" · packaged 2025-11-20"));
    EXPECT_EQ(sources.limitations.front(), whole);
    const OpenMapCredit& credit = sources.credits.front();
    EXPECT_EQ(credit.publisher, whole);
    EXPECT_EQ(credit.attribution, whole);
    EXPECT_EQ(credit.conditions, whole);
    EXPECT_EQ(credit.modifications, whole);
}

TEST(OpenMapSources, CreditsEverySourceInOrderAlsoThoseThatNoRecordCites) {
    OpenMapRelease release = makeRelease();
    release.sources = {makeSource(2), makeSource(0), makeSource(1)};
    release.sources[0].publisher = "Cited by nobody";
    const auto& credits = OpenMapSources::of(release).credits;
    ASSERT_EQ(credits.size(), 3U);
    EXPECT_EQ(credits[0].publisher, QStringLiteral("Cited by nobody"));
    EXPECT_EQ(credits[1], OpenMapCredit::of(release.sources[1]));
    EXPECT_EQ(credits[2], OpenMapCredit::of(release.sources[2]));
}

TEST(OpenMapSources, SaysWhatIsLicensedAndWhatIsPrivate) {
    const OpenMapSources sources = OpenMapSources::of(makeRelease());
    EXPECT_EQ(sources.licence,
              QStringLiteral("The data retain their source licences. Vasker app terms do not "
                             "restrict your rights under OGL-Canada or CC BY 4.0. No government or "
                             "publisher endorsement is implied."));
    ASSERT_EQ(sources.privacy.size(), 2);
    EXPECT_EQ(sources.privacy[0],
              QStringLiteral(
                  "This beta has no account, advertising, analytics or location tracking. Search "
                  "and filters run on your device. Apple Maps downloads its basemap from Apple; "
                  "source links open the publisher's website. Those services receive the requests "
                  "you make to them."));
    EXPECT_EQ(sources.privacy[1],
              QStringLiteral("No private Vasker library or raw source documents are included. Data "
                             "updates arrive in a new app release."));
}

TEST(OpenMapSources, SaysInOtherLanguagesThanEnglishThatTextsOfPublishersAreNotTranslated) {
    EXPECT_EQ(OpenMapSources::of(makeRelease()).languageNote, QString());
    int argumentCount = 1;
    std::array<char, 5> name{"test"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    const QCoreApplication application(argumentCount, arguments.data());
    Capitals translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(OpenMapSources::of(makeRelease()).languageNote,
              QStringLiteral("VALUES AND TEXTS OF PUBLISHERS ARE SHOWN IN THEIR OWN LANGUAGE."));
}

} // namespace
} // namespace vasker
