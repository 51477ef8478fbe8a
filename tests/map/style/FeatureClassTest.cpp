#include "map/style/FeatureClass.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

VectorFeature featureOf(VectorFeature::Geometry geometry, const char* kind) {
    VectorFeature feature;
    feature.geometry = geometry;
    feature.kind = kind;
    return feature;
}

VectorFeature lineOf(const char* kind) {
    return featureOf(VectorFeature::Geometry::lines, kind);
}

VectorFeature areaOf(const char* kind) {
    return featureOf(VectorFeature::Geometry::polygon, kind);
}

TEST(FeatureClass, ComesFromSourceLayerAndKind) {
    EXPECT_EQ(featureClass("streets", lineOf("motorway")), FeatureClass::motorway);
    EXPECT_EQ(featureClass("streets", lineOf("trunk")), FeatureClass::primary);
    EXPECT_EQ(featureClass("streets", lineOf("residential")), FeatureClass::street);
    EXPECT_EQ(featureClass("water_lines", lineOf("river")), FeatureClass::river);
    EXPECT_EQ(featureClass("water_lines", lineOf("ditch")), FeatureClass::stream);
    EXPECT_EQ(featureClass("ferries", lineOf("")), FeatureClass::ferry);
    EXPECT_EQ(featureClass("ocean", areaOf("")), FeatureClass::ocean);
    EXPECT_EQ(featureClass("water_polygons", areaOf("lake")), FeatureClass::lake);
    EXPECT_EQ(featureClass("land", areaOf("residential")), FeatureClass::urban);
    VectorFeature rail = lineOf("tram");
    rail.rail = true;
    EXPECT_EQ(featureClass("streets", rail), FeatureClass::rail);
    VectorFeature border = lineOf("");
    border.adminLevel = 2;
    EXPECT_EQ(featureClass("boundaries", border), FeatureClass::country);
    border.adminLevel = 3;
    EXPECT_EQ(featureClass("boundaries", border), FeatureClass::region);
    border.adminLevel = 4;
    EXPECT_EQ(featureClass("boundaries", border), FeatureClass::region);
}

TEST(FeatureClass, AGlacierIsIceInEitherLayer) {
    for (const char* layer : {"land", "water_polygons"}) {
        EXPECT_EQ(featureClass(layer, areaOf("glacier")), FeatureClass::ice);
    }
}

TEST(FeatureClass, WhatTheStyleDoesNotKnowHasNone) {
    EXPECT_EQ(featureClass("aerialways", lineOf("gondola")), std::nullopt);
    EXPECT_EQ(featureClass("streets", lineOf("hyperloop")), std::nullopt);
    EXPECT_EQ(featureClass("street_polygons", areaOf("pedestrian")), std::nullopt);
    EXPECT_EQ(featureClass("streets", areaOf("motorway")), std::nullopt);
    EXPECT_EQ(featureClass("place_labels", VectorFeature()), std::nullopt);
    VectorFeature county = lineOf("");
    county.adminLevel = 5;
    EXPECT_EQ(featureClass("boundaries", county), std::nullopt);
    VectorFeature atSea = lineOf("");
    atSea.adminLevel = 2;
    atSea.maritime = true;
    EXPECT_EQ(featureClass("boundaries", atSea), std::nullopt);
}

TEST(FeatureClass, SmallWatersAreStreamsAndOthersRivers) {
    for (const char* kind : {"stream", "ditch", "drain"}) {
        EXPECT_EQ(featureClass("water_lines", lineOf(kind)), FeatureClass::stream) << kind;
    }
    EXPECT_EQ(featureClass("water_lines", lineOf("canal")), FeatureClass::river);
}

} // namespace
} // namespace vasker
