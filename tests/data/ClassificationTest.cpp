#include "data/Classification.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

using Asset = OpenMapRelease::Asset;

const TextLocale english("en_CA");

/// An asset with nothing to be found but `id` and what `change` gives it.
template <typename Change>
Asset assetWith(const Change& change) {
    Asset asset = makeAsset();
    asset.name = asset.id = asset.jurisdiction = "-";
    asset.reportedCompany.reset();
    change(asset);
    return asset;
}

/// A release with a record of each name, in this order.
OpenMapRelease releaseOfNames(const std::vector<std::string>& names) {
    OpenMapRelease release = makeRelease();
    release.assets.clear();
    for (const std::string& name : names) {
        release.assets.push_back(makeAsset(release.assets.size()));
        release.assets.back().name = name;
    }
    return release;
}

OpenMapRelease releaseOfKinds(const std::vector<std::string>& keys) {
    OpenMapRelease release = releaseOfNames(std::vector<std::string>(keys.size(), "Plant"));
    for (std::size_t each = 0; each < keys.size(); ++each) {
        release.assets[each].kind = keys[each];
    }
    return release;
}

TEST(CategoryLabel, EightKeysHaveFixedLabels) {
    EXPECT_EQ(Asset::categoryLabel("lng_plant"), "LNG facility");
    EXPECT_EQ(Asset::categoryLabel("gas_plant"), "Gas plant");
    EXPECT_EQ(Asset::categoryLabel("straddle_plant"), "Straddle plant");
    EXPECT_EQ(Asset::categoryLabel("fractionation"), "Fractionation plant");
    EXPECT_EQ(Asset::categoryLabel("oil_sands_plant"), "Oil sands plant");
    EXPECT_EQ(Asset::categoryLabel("oil_sands_insitu"), "In-situ oil sands");
    EXPECT_EQ(Asset::categoryLabel("processing"), "Reporting facility");
    EXPECT_EQ(Asset::categoryLabel("other"), "Unclassified facility");
}

TEST(CategoryLabel, AnyOtherKeyIsCapitalized) {
    EXPECT_EQ(Asset::categoryLabel("compressor_station"), "Compressor_station");
    EXPECT_EQ(Asset::categoryLabel("LNG_PLANT"), "Lng_plant");
    EXPECT_EQ(Asset::categoryLabel(" gas_plant"), " Gas_plant");
    EXPECT_EQ(Asset::categoryLabel("LNG"), "Lng");
    EXPECT_EQ(Asset::categoryLabel(""), "");
}

TEST(CategoryLabel, TheCategoryOfARecordIsTheLabelOfItsKind) {
    EXPECT_EQ(makeAsset().category(), "Gas plant");
}

TEST(Route, ARecordHasOneWithItsFirstRouteWhateverItHolds) {
    Asset asset = makeAsset();
    EXPECT_FALSE(asset.hasRoute());
    asset.routes.emplace_back();
    EXPECT_TRUE(asset.hasRoute());
}

TEST(ShortName, FiveDatasetsHaveOne) {
    const auto shortName = [](const std::string& dataset) {
        auto source = makeSource();
        source.dataset = dataset;
        return std::string(source.shortName());
    };
    EXPECT_EQ(shortName("npri-facility-locations-2024"), "NPRI");
    EXPECT_EQ(shortName("ghgrp-facility-emissions"), "GHGRP");
    EXPECT_EQ(shortName("gem-goit-pipelines"), "GEM oil/NGL pipelines");
    EXPECT_EQ(shortName("gem-ggit-pipelines"), "GEM gas pipelines");
    EXPECT_EQ(shortName("gem-ggit-lng-terminals"), "GEM LNG terminals");
}

TEST(ShortName, AnyOtherDatasetShowsItsPublisher) {
    auto source = makeSource();
    source.dataset = "GEM-goit-pipelines";
    EXPECT_EQ(source.shortName(), "Environment and Climate Change Canada");
}

TEST(Matches, TheEmptyQueryMatchesEveryRecord) {
    EXPECT_TRUE(Asset().matches("", english));
    EXPECT_FALSE(Asset().matches(" ", english));
}

TEST(Matches, NameIDCompanyJurisdictionAndFactValuesAreSearched) {
    EXPECT_TRUE(assetWith([](Asset& a) { a.name = "x Abc x"; }).matches("aBC", english));
    EXPECT_TRUE(assetWith([](Asset& a) { a.id = "ABC-001"; }).matches("abc", english));
    EXPECT_TRUE(assetWith([](Asset& a) { a.reportedCompany = "abc"; }).matches("Abc", english));
    EXPECT_TRUE(
        assetWith([](Asset& a) { a.jurisdiction = "Alberta"; }).matches("ALBERTA", english));
    EXPECT_TRUE(assetWith([](Asset& a) {
                    a.facts = {makeFact("1"), makeFact("2 Abc")};
                }).matches("abc", english));
}

TEST(Matches, NothingElseIsSearched) {
    const auto asset = assetWith([](Asset& a) {
        a.kind = "gas_plant needle";
        a.sourceID = a.status = a.asOf = "needle";
        a.facts = {{.label = "needle", .value = "-", .sourceID = "needle", .asOf = "needle"}};
    });
    EXPECT_FALSE(asset.matches("needle", english));
    EXPECT_FALSE(asset.matches("gas plant", english));
}

TEST(Matches, ARecordWithoutCompanyIsNotFoundByOne) {
    Asset asset = makeAsset();
    EXPECT_TRUE(asset.matches("prairie", english));
    asset.reportedCompany.reset();
    EXPECT_FALSE(asset.matches("prairie", english));
    EXPECT_TRUE(asset.matches("", english));
}

TEST(Matches, TheQueryIsOneTextAndNotWords) {
    const auto asset = assetWith([](Asset& a) { a.name = "Plant of gas"; });
    EXPECT_FALSE(asset.matches("gas plant", english));
    EXPECT_FALSE(asset.matches("gas ", english));
    EXPECT_TRUE(asset.matches(" of ", english));
}

TEST(Matches, NothingIsFoundAcrossTwoTexts) {
    const auto asset = assetWith([](Asset& a) {
        a.name = "ab";
        a.id = "cd";
    });
    EXPECT_FALSE(asset.matches("bc", english));
    EXPECT_FALSE(asset.matches("abcd", english));
}

TEST(Matches, AccentsCount) {
    const auto asset = assetWith([](Asset& a) { a.name = "Montr\u00E9al"; });
    EXPECT_FALSE(asset.matches("montreal", english));
    EXPECT_FALSE(asset.matches("montre", english));
    EXPECT_TRUE(asset.matches("MONTRE\u0301AL", english));
}

TEST(Matches, LetterCaseIsThatOfTheLocale) {
    const auto asset = assetWith([](Asset& a) { a.name = "ILIM"; });
    EXPECT_TRUE(asset.matches("ilim", english));
    EXPECT_FALSE(asset.matches("ilim", TextLocale("tr_TR")));
}

TEST(Filtered, EveryRecordIsKeptByTheKindAllAndTheEmptyQueryInNameOrder) {
    const auto release = releaseOfNames({"Plant 10", "plant 9", "Anchor", "Plant 9"});
    EXPECT_EQ(filtered(release, "", "all", english), (std::vector<AssetIndex>{2, 1, 3, 0}));
}

TEST(Filtered, RecordsNamedAlikeKeepTheirFileOrder) {
    const auto release = releaseOfNames({"b", "a", "b", "a", "Plant 02", "Plant 2"});
    EXPECT_EQ(filtered(release, "", "all", english), (std::vector<AssetIndex>{1, 3, 0, 2, 4, 5}));
}

TEST(Filtered, KindsAreComparedExactly) {
    const auto release = releaseOfKinds({"gas_plant", "Gas_plant", "", "all"});
    EXPECT_EQ(filtered(release, "", "gas_plant", english), (std::vector<AssetIndex>{0}));
    EXPECT_EQ(filtered(release, "", "", english), (std::vector<AssetIndex>{2}));
    EXPECT_EQ(filtered(release, "", "all", english).size(), 4U);
    EXPECT_TRUE(filtered(release, "", "gas", english).empty());
}

TEST(Filtered, BothFiltersHaveToPass) {
    auto release = releaseOfNames({"North", "South", "North"});
    release.assets[2].kind = "other";
    EXPECT_EQ(filtered(release, "north", "gas_plant", english), (std::vector<AssetIndex>{0}));
}

TEST(Kinds, AreDistinctAndInCodePointOrder) {
    EXPECT_EQ(kinds(releaseOfKinds({"plant 2", "Zebra", "plant 10", "Zebra", "", "\u00E9"})),
              (std::vector<std::string>{"", "Zebra", "plant 10", "plant 2", "\u00E9"}));
}

TEST(Kinds, ThatDifferOnlyInTheirEncodingAreBothKeptInFileOrder) {
    EXPECT_EQ(kinds(releaseOfKinds({"e\u0301", "\u00E9", "e\u0301"})),
              (std::vector<std::string>{"e\u0301", "\u00E9"}));
    EXPECT_EQ(kinds(releaseOfKinds({"\u00E9", "e\u0301"})),
              (std::vector<std::string>{"\u00E9", "e\u0301"}));
}

TEST(Kinds, HoldAllOnlyIfARecordDoes) {
    EXPECT_EQ(kinds(releaseOfKinds({"b"})), (std::vector<std::string>{"b"}));
    EXPECT_EQ(kinds(releaseOfKinds({"b", "all"})), (std::vector<std::string>{"all", "b"}));
}

} // namespace
} // namespace vasker
