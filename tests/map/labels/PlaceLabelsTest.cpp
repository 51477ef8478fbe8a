#include "map/labels/PlaceLabels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vasker {
namespace {

constexpr TileKey tile{5, 6, 9};
constexpr TileKey itsFirstChild{6, 12, 18};

VectorFeature place(const char* name, TilePoint point, const char* kind = "city", int rank = 2) {
    VectorFeature feature;
    feature.parts = {{point}};
    feature.kind = kind;
    feature.name = name;
    feature.rank = rank;
    return feature;
}

TileData dataOf(std::vector<VectorFeature> places, const char* layer = "place_labels") {
    TileData data;
    data.vector = std::make_shared<VectorTile>(VectorTile{{{layer, std::move(places)}}});
    data.vectorKey = tile;
    return data;
}

TileRequest requestFor(TileKey key, double zoom) {
    TileRequest request;
    request.key = key;
    request.devicePixelsPerMapPoint = std::exp2(zoom) * tilePixels / worldSize;
    return request;
}

std::vector<QString> textsOf(const TileData& data,
                             const TileRequest& request,
                             MapLanguage language = MapLanguage::english) {
    std::vector<QString> texts;
    for (const PlaceLabel& label : placeLabels(data, request, language)) {
        texts.push_back(label.text);
    }
    return texts;
}

TEST(PlaceLabels, OnlyThePointsInsideTheTileAreItsOwn) {
    const TileData data = dataOf({place("in", {0, 0.5F}),
                                  place("beyond", {1, 0.5F}),
                                  place("before", {-0.01F, 0.5F}),
                                  place("below", {0.5F, 1.02F})});
    EXPECT_EQ(textsOf(data, requestFor(tile, 5)), (std::vector<QString>{QStringLiteral("in")}));
}

TEST(PlaceLabels, AChildShowsTheLabelsOfItsOwnPart) {
    const TileData data = dataOf({place("here", {0.2F, 0.2F}), place("there", {0.7F, 0.2F})});
    const std::vector<PlaceLabel> labels =
        placeLabels(data, requestFor(itsFirstChild, 6), MapLanguage::english);
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_EQ(labels[0].text, QStringLiteral("here"));
    EXPECT_NEAR(labels[0].point.x, (6 + 0.2) * tile.side(), 1);
    EXPECT_NEAR(labels[0].point.y, (9 + 0.2) * tile.side(), 1);
}

TEST(PlaceLabels, TheMapsLanguageIsTakenWhereAPlaceHasANameInIt) {
    VectorFeature bay = place("Kangiqsualuk ilua", {0.5F, 0.5F}, "bay", 1);
    bay.nameEnglish = "Hudson Bay";
    bay.nameFrench = "Baie d’Hudson";
    const TileData data = dataOf({bay}, "water_polygons_labels");
    const TileRequest request = requestFor(tile, 5);
    EXPECT_EQ(textsOf(data, request)[0], QStringLiteral("Hudson Bay"));
    EXPECT_EQ(textsOf(data, request, MapLanguage::french)[0], QStringLiteral("Baie d’Hudson"));
    const TileData edmonton = dataOf({place("Edmonton", {0.5F, 0.5F})});
    EXPECT_EQ(textsOf(edmonton, request, MapLanguage::french)[0], QStringLiteral("Edmonton"));
}

TEST(PlaceLabels, CountriesComeFirstThenRegionsThenCitiesByRankThenWaters) {
    TileData data;
    VectorFeature country = place("country", {0.1F, 0.1F}, "", 0);
    country.adminLevel = 2;
    VectorFeature region = place("region", {0.2F, 0.2F}, "", 1);
    region.adminLevel = 4;
    data.vectorKey = {4, 3, 4};
    data.vector = std::make_shared<VectorTile>(VectorTile{
        {{"water_polygons_labels", {place("lake", {0.6F, 0.6F}, "water", 0)}},
         {"place_labels",
          {place("lesser", {0.4F, 0.4F}, "city", 3), place("greater", {0.3F, 0.3F}, "city", 1)}},
         {"boundary_labels", {region, country}}}});
    EXPECT_EQ(textsOf(data, requestFor(data.vectorKey, 3.5)),
              (std::vector<QString>{QStringLiteral("country"),
                                    QStringLiteral("region"),
                                    QStringLiteral("greater"),
                                    QStringLiteral("lesser"),
                                    QStringLiteral("lake")}));
}

TEST(PlaceLabels, OfEqualRankTheCapitalAndThenTheMorePeopledGoFirst) {
    VectorFeature many = place("many", {0.1F, 0.1F}, "city", 3);
    many.population = 900'000;
    VectorFeature few = place("few", {0.2F, 0.2F}, "city", 3);
    few.population = 90'000;
    VectorFeature capital = place("capital", {0.3F, 0.3F}, "state_capital", 3);
    capital.population = 20'000;
    EXPECT_EQ(textsOf(dataOf({few, many, capital}), requestFor(tile, 5)),
              (std::vector<QString>{
                  QStringLiteral("capital"), QStringLiteral("many"), QStringLiteral("few")}));
}

TEST(PlaceLabels, SmallPlacesAndWatersWaitForNearZooms) {
    const TileData places = dataOf({place("city", {0.1F, 0.1F}, "city", 2),
                                    place("town", {0.2F, 0.2F}, "town", 6),
                                    place("village", {0.3F, 0.3F}, "village", 8)});
    EXPECT_EQ(textsOf(places, requestFor(tile, 3)).size(), 1U);
    EXPECT_EQ(textsOf(places, requestFor(tile, 6)).size(), 2U);
    EXPECT_EQ(textsOf(places, requestFor(tile, 9)).size(), 3U);
    VectorFeature pond = place("pond", {0.5F, 0.5F}, "water", 0);
    pond.wayArea = 1e6; // a kilometre across
    const TileData waters = dataOf({pond}, "water_polygons_labels");
    EXPECT_TRUE(textsOf(waters, requestFor(tile, 10)).empty());
    EXPECT_EQ(textsOf(waters, requestFor(tile, 13)).size(), 1U);
}

TEST(PlaceLabels, CountriesGoWhenRegionsHaveComeAndRegionsGoWhenTheyFillTheScreen) {
    VectorFeature country = place("country", {0.1F, 0.1F}, "", 0);
    country.adminLevel = 2;
    VectorFeature region = place("region", {0.2F, 0.2F}, "", 1);
    region.adminLevel = 4;
    const TileData data = dataOf({country, region}, "boundary_labels");
    EXPECT_EQ(textsOf(data, requestFor(tile, 2)),
              (std::vector<QString>{QStringLiteral("country")}));
    EXPECT_EQ(textsOf(data, requestFor(tile, 6)), (std::vector<QString>{QStringLiteral("region")}));
    EXPECT_TRUE(textsOf(data, requestFor(tile, 8)).empty());
}

TEST(PlaceLabels, ALabelIsNotRepeatedNearByButFarAway) {
    const TileData data = dataOf({place("Kinbasket Lake", {0.1F, 0.1F}, "water", 0),
                                  place("Kinbasket Lake", {0.3F, 0.1F}, "water", 0),
                                  place("Kinbasket Lake", {0.9F, 0.9F}, "water", 0)},
                                 "water_polygons_labels");
    EXPECT_EQ(textsOf(data, requestFor(tile, 5)).size(), 2U);
}

TEST(PlaceLabels, TheMostImportantOfAsManyAsFindRoomAreTaken) {
    std::vector<VectorFeature> places;
    for (int i = 0; i < 5'000; ++i) {
        const auto x = static_cast<float>(i) / 5'000;
        places.push_back(place(std::to_string(i).c_str(), {x, 0.5F}, "city", i < 4'000 ? 2 : 1));
    }
    const std::vector<QString> texts = textsOf(dataOf(places), requestFor(tile, 5));
    ASSERT_EQ(texts.size(), mostPlaceLabels);
    EXPECT_EQ(texts.front(), QStringLiteral("4000"));
    EXPECT_EQ(texts.back(), QStringLiteral("4299"));
}

TEST(PlaceLabels, OfVeryManyThatRepeatOneTextOneIsTaken) {
    const std::vector<VectorFeature> places(200'000, place("again", {0.5F, 0.5F}));
    EXPECT_EQ(textsOf(dataOf(places), requestFor(tile, 5)).size(), 1U);
}

TEST(PlaceLabels, WhatHasNoNameNoPlaceOrAnUnknownKindIsPassedOver) {
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    VectorFeature nowhere = place("nowhere", {0.5F, 0.5F});
    nowhere.parts.clear();
    const TileData data = dataOf({place("", {0.5F, 0.5F}),
                                  place("  \n", {0.5F, 0.5F}),
                                  place("odd", {nan, 0.5F}),
                                  place("space port", {0.5F, 0.5F}, "space_port"),
                                  nowhere});
    EXPECT_TRUE(textsOf(data, requestFor(tile, 5)).empty());
    EXPECT_TRUE(textsOf(TileData(), requestFor(tile, 5)).empty());
    TileRequest senseless = requestFor(tile, 5);
    senseless.devicePixelsPerMapPoint = -1;
    EXPECT_TRUE(textsOf(dataOf({place("x", {0.5F, 0.5F})}), senseless).empty());
}

TEST(PlaceLabels, ARepetitionNearByIsFoundInEveryDirection) {
    for (const TilePoint from : {TilePoint{0.5F, 0.5F}, {0.45F, 0.55F}}) {
        for (int step = 0; step < 8; ++step) {
            const double angle = step * M_PI / 4;
            const auto right = static_cast<float>(0.4 * std::cos(angle));
            const auto down = static_cast<float>(0.4 * std::sin(angle));
            const TileData data =
                dataOf({place("Cold Lake", from, "water", 0),
                        place("Cold Lake", {from.x + right, from.y + down}, "water", 0)},
                       "water_polygons_labels");
            EXPECT_EQ(textsOf(data, requestFor(tile, 5)).size(), 1U) << step;
        }
    }
}

TEST(PlaceLabels, ALabelShowsFromItsFirstZoomUpToItsLast) {
    VectorFeature country = place("country", {0.1F, 0.1F}, "", 2);
    country.adminLevel = 2;
    const TileData data = dataOf({country}, "boundary_labels");
    const auto shows = [&](double zoom) { return !textsOf(data, requestFor(tile, zoom)).empty(); };
    EXPECT_FALSE(shows(2.399));
    EXPECT_TRUE(shows(2.401));
    EXPECT_TRUE(shows(3.599));
    EXPECT_FALSE(shows(3.601));
    VectorFeature greatest = place("greatest", {0.1F, 0.1F}, "", 0);
    greatest.adminLevel = 2;
    EXPECT_TRUE(textsOf(dataOf({greatest}, "boundary_labels"), requestFor(tile, 0.999)).empty());
    EXPECT_FALSE(textsOf(dataOf({greatest}, "boundary_labels"), requestFor(tile, 1)).empty());
}

TEST(PlaceLabels, AMetropolisWithoutRankComesWithTheLargeCities) {
    VectorFeature metropolis = place("metropolis", {0.1F, 0.1F}, "city", 0);
    metropolis.population = 1'000'000;
    VectorFeature city = place("city", {0.2F, 0.2F}, "city", 0);
    city.population = 999'999;
    VectorFeature ranked = place("ranked", {0.3F, 0.3F}, "city", 4);
    ranked.population = 2'000'000;
    const TileData data = dataOf({metropolis, city, ranked});
    EXPECT_EQ(textsOf(data, requestFor(tile, 3.01)),
              (std::vector<QString>{QStringLiteral("metropolis")}));
    EXPECT_EQ(textsOf(data, requestFor(tile, 4.5)).size(), 2U);
    EXPECT_EQ(textsOf(data, requestFor(tile, 5.01)).size(), 3U);
}

TEST(PlaceLabels, ASmallCapitalOfARegionIsSetAsATownAndComesALittleLater) {
    VectorFeature capital = place("capital", {0.1F, 0.1F}, "state_capital", 3);
    capital.population = 200'000;
    const auto labelsAt = [&](double zoom) {
        return placeLabels(dataOf({capital}), requestFor(tile, zoom), MapLanguage::english);
    };
    ASSERT_EQ(labelsAt(3.3).size(), 1U);
    EXPECT_EQ(labelsAt(3.3)[0].kind, PlaceLabel::Kind::city);
    capital.population = 199'999;
    EXPECT_TRUE(labelsAt(3.3).empty());
    ASSERT_EQ(labelsAt(3.7).size(), 1U);
    EXPECT_EQ(labelsAt(3.7)[0].kind, PlaceLabel::Kind::town);
}

TEST(PlaceLabels, CountriesRegionsAndWatersCompeteByTheirRanks) {
    VectorFeature great = place("great", {0.1F, 0.1F}, "", 1);
    VectorFeature small = place("small", {0.2F, 0.2F}, "", 2);
    const std::vector<QString> expected{QStringLiteral("great"), QStringLiteral("small")};
    EXPECT_EQ(textsOf(dataOf({small, great}, "water_polygons_labels"), requestFor(tile, 5)),
              expected);
    for (const int level : {2, 4}) {
        great.adminLevel = small.adminLevel = level;
        EXPECT_EQ(textsOf(dataOf({small, great}, "boundary_labels"), requestFor(tile, 3.5)),
                  expected);
    }
    great.wayArea = 1e12;
    small.wayArea = 1e11;
    EXPECT_EQ(textsOf(dataOf({small, great}, "water_polygons_labels"), requestFor(tile, 5)),
              expected);
}

} // namespace
} // namespace vasker
