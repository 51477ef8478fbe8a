#include "data/ReleaseRules.h"

#include "data/Cancelled.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace vasker {
namespace {

/// "ok", or the case and place of the refusal, after `change` was made to a valid release.
template <typename Change>
std::string outcomeAfter(const Change& change) {
    OpenMapRelease release = makeRelease();
    change(release);
    try {
        validate(release);
        return "ok";
    } catch (const OpenMapRelease::Refusal& refusal) {
        return std::string(nameOf(refusal.invalid())) + ": " + refusal.place();
    }
}

using Release = OpenMapRelease;

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    for (std::size_t each = 0; each < count; ++each) {
        result += text;
    }
    return result;
}

/// `count` facilities that differ in id.
std::vector<Release::Asset> makeAssets(std::size_t count) {
    std::vector<Release::Asset> assets;
    for (std::size_t each = 0; each < count; ++each) {
        assets.push_back(makeAsset(each));
    }
    return assets;
}

/// Makes `count` sources, each cited by a fact of its own asset.
void citeSources(Release& release, std::size_t count) {
    release.sources.clear();
    release.assets = makeAssets(count);
    for (std::size_t each = 0; each < count; ++each) {
        release.sources.push_back(makeSource(each));
        release.assets[each].facts = {makeFact()};
        release.assets[each].facts[0].sourceID = sourceID(each);
    }
}

// The release as a whole.

TEST(ReleaseRules, AReleaseThatKeepsAllRulesIsAccepted) {
    EXPECT_EQ(outcomeAfter([](Release&) {}), "ok");
}

TEST(ReleaseRules, AnEmptyReleaseIDIsRefused) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.releaseID = ""; }), "records: releaseID: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.releaseID = " "; }), "ok");
}

TEST(ReleaseRules, AnEmptyCoverageNameIsRefused) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.coverageName = ""; }),
              "records: coverageName: empty");
}

TEST(ReleaseRules, APackagingTimeThatIsNoInternetDateTimeIsRefused) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.generatedAt = "2025-11-20"; }),
              "records: generatedAt: \"2025-11-20\" is not an internet date-time");
}

TEST(ReleaseRules, AtLeastOneLimitationIsRequired) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.limitations.clear(); }),
              "records: limitations: none");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.limitations = {""}; }), "ok");
}

TEST(ReleaseRules, OneToTenThousandAssetsAreAccepted) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets.clear(); }),
              "records: assets: 0 is outside 1 to 10000");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets = makeAssets(10'000); }), "ok");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets = makeAssets(10'001); }),
              "records: assets: 10001 is outside 1 to 10000");
}

TEST(ReleaseRules, AssetsDifferInID) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].id = "A-0"; }),
              "records: assets[1].id: \"A-0\" is repeated");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].id = "a-0"; }), "ok");
}

TEST(ReleaseRules, IDsAreComparedByteByByte) {
    EXPECT_EQ(outcomeAfter([](Release& r) {
                  r.assets[0].id = "\u00E9";
                  r.assets[1].id = "e\u0301";
              }),
              "ok");
}

TEST(ReleaseRules, OneToAHundredSourcesAreAccepted) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources.clear(); }),
              "provenance: sources: 0 is outside 1 to 100");
    EXPECT_EQ(outcomeAfter([](Release& r) { citeSources(r, 100); }), "ok");
    EXPECT_EQ(outcomeAfter([](Release& r) { citeSources(r, 101); }),
              "provenance: sources: 101 is outside 1 to 100");
}

TEST(ReleaseRules, AMillionSourcesAreRefusedByTheirCount) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources.resize(1'000'000); }),
              "provenance: sources: 1000000 is outside 1 to 100");
}

TEST(ReleaseRules, SourcesDifferInID) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources.push_back(makeSource()); }),
              "provenance: sources[1].id: \"" + sourceID() + "\" is repeated");
}

// Every source.

/// The outcome where the only source and all that cite it have this id.
std::string outcomeWithSourceID(const std::string& id) {
    return outcomeAfter([&](Release& r) {
        r.sources[0].id = id;
        r.assets[0].sourceID = r.assets[1].sourceID = r.assets[0].facts[0].sourceID = id;
    });
}

TEST(ReleaseRules, ASourceIDHasSixtyFourHexadecimalDigits) {
    const std::string refused = "provenance: sources[0].id: not 64 hexadecimal digits";
    EXPECT_EQ(outcomeWithSourceID(repeated("0123456789abcdef", 4)), "ok");
    EXPECT_EQ(outcomeWithSourceID(repeated("0123456789ABCDEF", 4)), "ok");
    EXPECT_EQ(outcomeWithSourceID(std::string(63, 'a')), refused);
    EXPECT_EQ(outcomeWithSourceID(std::string(65, 'a')), refused);
    EXPECT_EQ(outcomeWithSourceID(""), refused);
    for (const char other : {'g', 'G', '/', ':', '@', '`', ' ', '\0'}) {
        EXPECT_EQ(outcomeWithSourceID(std::string(63, 'a') + other), refused) << other;
    }
}

TEST(ReleaseRules, FullWidthHexadecimalDigitsCount) {
    const std::string refused = "provenance: sources[0].id: not 64 hexadecimal digits";
    EXPECT_EQ(outcomeWithSourceID(repeated("\uFF10\uFF19\uFF21\uFF26\uFF41\uFF46\u0061\u0030", 8)),
              "ok");
    EXPECT_EQ(outcomeWithSourceID(repeated("\uFF11", 63)), refused);
    EXPECT_EQ(outcomeWithSourceID(repeated("\uFF11", 65)), refused);
    for (const std::string_view other : {"\uFF0F",
                                         "\uFF1A",
                                         "\uFF20",
                                         "\uFF27",
                                         "\uFF40",
                                         "\uFF47",
                                         "\u0660",
                                         "\u00E9",
                                         "\xEF",
                                         "\xEF\xBC"}) {
        EXPECT_EQ(outcomeWithSourceID(std::string(63, 'a') + std::string(other)), refused) << other;
    }
}

TEST(ReleaseRules, TheFiveDatasetsAreAccepted) {
    for (const std::string dataset : {"npri-facility-locations-2024",
                                      "ghgrp-facility-emissions",
                                      "gem-goit-pipelines",
                                      "gem-ggit-pipelines",
                                      "gem-ggit-lng-terminals"}) {
        EXPECT_EQ(outcomeAfter([&](Release& r) { r.sources[0].dataset = dataset; }), "ok");
    }
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources[0].dataset = "GEM-goit-pipelines"; }),
              "provenance: sources[0].dataset: \"GEM-goit-pipelines\" is not accepted");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources[0].dataset = ""; }),
              "provenance: sources[0].dataset: \"\" is not accepted");
}

TEST(ReleaseRules, ASourceHasPublisherAttributionConditionsAndModifications) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources[0].publisher = ""; }),
              "provenance: sources[0].publisher: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources[0].attribution = ""; }),
              "provenance: sources[0].attribution: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources[0].conditions = ""; }),
              "provenance: sources[0].conditions: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources[0].modifications = ""; }),
              "provenance: sources[0].modifications: empty");
}

TEST(ReleaseRules, TheAddressesOfASourceAreSecure) {
    EXPECT_EQ(
        outcomeAfter([](Release& r) { r.sources[0].sourceURL = "http://example.ca"; }),
        "provenance: sources[0].sourceURL: \"http://example.ca\" is not an https address with a "
        "host and without a user");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources[0].licenceURL = "https://u:p@example.ca"; }),
              "provenance: sources[0].licenceURL: \"https://u:p@example.ca\" is not an https "
              "address with "
              "a host and without a user");
}

// Every asset.

TEST(ReleaseRules, AnAssetHasIDNameStatusAndPeriod) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].id = ""; }),
              "records: assets[1].id: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].name = ""; }),
              "records: assets[1].name: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].status = ""; }),
              "records: assets[1].status: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].asOf = ""; }),
              "records: assets[1].asOf: empty");
}

TEST(ReleaseRules, KindJurisdictionAndCompanyMayBeEmpty) {
    EXPECT_EQ(outcomeAfter([](Release& r) {
                  r.assets[0].kind = "";
                  r.assets[0].jurisdiction = "";
                  r.assets[0].reportedCompany = "";
              }),
              "ok");
}

TEST(ReleaseRules, ANameHasAtMostAThousandCharacters) {
    const std::string refused = "records: assets[0].name: more than 1000 characters";
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].name = std::string(1'000, 'n'); }), "ok");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].name = std::string(1'001, 'n'); }),
              refused);
}

TEST(ReleaseRules, LengthsCountCharactersAsPeopleDo) {
    const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
    for (const std::string& character : {family,
                                         std::string("e\u0301\u0323"),
                                         std::string("\r\n"),
                                         std::string("\U0001F1E8\U0001F1E6")}) {
        EXPECT_EQ(outcomeAfter([&](Release& r) { r.assets[0].name = repeated(character, 1'000); }),
                  "ok");
        EXPECT_EQ(outcomeAfter([&](Release& r) { r.assets[0].name = repeated(character, 1'001); }),
                  "records: assets[0].name: more than 1000 characters");
    }
}

TEST(ReleaseRules, ANameOfOneEndlessCharacterIsAccepted) {
    EXPECT_EQ(
        outcomeAfter([](Release& r) { r.assets[0].name = "e" + repeated("\u0301", 1'000'000); }),
        "ok");
}

TEST(ReleaseRules, AnAssetHasAtMostFiftyFacts) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].facts.assign(50, makeFact()); }), "ok");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].facts.assign(51, makeFact()); }),
              "records: assets[0].facts: 51 are more than 50");
}

TEST(ReleaseRules, AnAssetCitesASource) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].sourceID = sourceID(7); }),
              "provenance: assets[1].sourceID: no source has this id");
}

TEST(ReleaseRules, APointLiesOnTheGlobe) {
    const auto outcomeAt = [](double longitude, double latitude) {
        return outcomeAfter([&](Release& r) {
            r.assets[0].longitude = longitude;
            r.assets[0].latitude = latitude;
        });
    };
    EXPECT_EQ(outcomeAt(180, -90), "ok");
    EXPECT_EQ(outcomeAt(-180, 90), "ok");
    EXPECT_EQ(outcomeAt(200, 10), "coordinates: assets[0]: longitude 200 is outside -180 to 180");
    EXPECT_EQ(outcomeAt(-180.00000000000003, 10),
              "coordinates: assets[0]: longitude -180.00000000000003 is outside -180 to 180");
    EXPECT_EQ(outcomeAt(10, 95), "coordinates: assets[0]: latitude 95 is outside -90 to 90");
    EXPECT_EQ(outcomeAt(10, -90.5), "coordinates: assets[0]: latitude -90.5 is outside -90 to 90");
    EXPECT_EQ(outcomeAt(std::numeric_limits<double>::infinity(), 0),
              "coordinates: assets[0]: longitude inf is outside -180 to 180");
}

TEST(ReleaseRules, ARouteHasAtLeastTwoPoints) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].routes.push_back(makeRoute(1)); }),
              "coordinates: assets[1].routes[1]: fewer than 2 points");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[1].routes.push_back({}); }),
              "coordinates: assets[1].routes[1]: fewer than 2 points");
}

TEST(ReleaseRules, AllRoutesTogetherHaveAtMostThreeHundredThousandPoints) {
    const auto outcomeWith = [](std::size_t pointsOfTheLast) {
        return outcomeAfter([&](Release& r) {
            r.assets[0].routes = {makeRoute(100'000), makeRoute(99'999)};
            r.assets[1].routes = {makeRoute(100'000), makeRoute(pointsOfTheLast)};
            r.assets[1].routes[1].back() = {-1, 1};
        });
    };
    EXPECT_EQ(outcomeWith(2),
              "coordinates: assets[1].routes[1]: the release has more than 300000 route points");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].routes = {makeRoute(299'998)}; }), "ok");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].routes = {makeRoute(299'999)}; }),
              "coordinates: assets[1].routes[0]: the release has more than 300000 route points");
}

TEST(ReleaseRules, EveryPointOfARouteLiesOnTheGlobe) {
    EXPECT_EQ(outcomeAfter([](Release& r) {
                  r.assets[1].routes[0][1] = {200, 10};
              }),
              "coordinates: assets[1].routes[0][1]: longitude 200 is outside -180 to 180");
    EXPECT_EQ(outcomeAfter([](Release& r) {
                  r.assets[1].routes[0][1] = {10, 95};
              }),
              "coordinates: assets[1].routes[0][1]: latitude 95 is outside -90 to 90");
    EXPECT_EQ(outcomeAfter([](Release& r) {
                  r.assets[1].routes[0] = {{180, -90}, {-180, 90}};
              }),
              "ok");
}

TEST(ReleaseRules, APositionThatIsNoPairIsRefusedAtItsPlaceInTheOrder) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(outcomeAfter([&](Release& r) {
                  r.assets[1].routes[0][0] = {none, none};
              }),
              "coordinates: assets[1].routes[0][0]: not a pair of longitude and latitude");
    EXPECT_EQ(outcomeAfter([&](Release& r) {
                  r.assets[1].routes[0][0] = {none, none};
                  r.assets[0].facts[0].label = "";
              }),
              "provenance: assets[0].facts[0].label: empty");
}

TEST(ReleaseRules, AFactHasLabelValueAndPeriod) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].facts[0].label = ""; }),
              "provenance: assets[0].facts[0].label: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].facts[0].value = ""; }),
              "provenance: assets[0].facts[0].value: empty");
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].facts[0].asOf = ""; }),
              "provenance: assets[0].facts[0].asOf: empty");
}

TEST(ReleaseRules, AFactValueHasAtMostTenThousandCharacters) {
    EXPECT_EQ(
        outcomeAfter([](Release& r) { r.assets[0].facts[0].value = repeated("e\u0301", 10'000); }),
        "ok");
    EXPECT_EQ(
        outcomeAfter([](Release& r) { r.assets[0].facts[0].value = repeated("e\u0301", 10'001); }),
        "provenance: assets[0].facts[0].value: more than 10000 characters");
}

TEST(ReleaseRules, AFactCitesASource) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.assets[0].facts[0].sourceID = ""; }),
              "provenance: assets[0].facts[0].sourceID: no source has this id");
}

TEST(ReleaseRules, EverySourceIsCitedByAnAssetOrAFact) {
    EXPECT_EQ(outcomeAfter([](Release& r) { r.sources.push_back(makeSource(1)); }),
              "provenance: sources[1]: cited by no asset or fact");
    EXPECT_EQ(outcomeAfter([](Release& r) {
                  r.sources.push_back(makeSource(1));
                  r.assets[1].sourceID = sourceID(1);
              }),
              "ok");
    EXPECT_EQ(outcomeAfter([](Release& r) {
                  r.sources.push_back(makeSource(1));
                  r.assets[0].facts[0].sourceID = sourceID(1);
              }),
              "ok");
}

TEST(ReleaseRules, AreNoLongerCheckedWhenAStopIsRequested) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(validate(makeRelease(), stop.get_token()), Cancelled);
}

} // namespace
} // namespace vasker
