#include "data/export/GeoJsonExport.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace vasker {
namespace {

using Json = nlohmann::json;

const ExportHeader geoJsonHeader{"canada-energy-2026-11", std::string(64, 'a'), "gas \"x\"", "all"};

Json exportedJson(const OpenMapRelease& release, const std::vector<AssetIndex>& records) {
    std::string text;
    const ExportOutcome outcome =
        exportGeoJson(release, records, geoJsonHeader, [&](std::string_view piece) {
            text += piece;
            return true;
        });
    EXPECT_EQ(outcome, ExportOutcome::written);
    return Json::parse(text);
}

TEST(GeoJsonExport, NamesReleaseDigestQueryFilterAndSources) {
    const OpenMapRelease release = makeRelease();
    const Json collection = exportedJson(release, {0, 1});
    EXPECT_EQ(collection["type"], "FeatureCollection");
    EXPECT_EQ(collection["release"], "canada-energy-2026-11");
    EXPECT_EQ(collection["sha256"], std::string(64, 'a'));
    EXPECT_EQ(collection["query"], "gas \"x\"");
    EXPECT_EQ(collection["filter"], "all");
    ASSERT_EQ(collection["sources"].size(), 1U);
    EXPECT_EQ(collection["sources"][0]["modifications"], release.sources[0].modifications);
}

TEST(GeoJsonExport, HasNoSourceThatNoRecordOfItCites) {
    OpenMapRelease release = makeRelease();
    release.sources.push_back(makeSource(1));
    release.assets[1].sourceID = sourceID(1);
    EXPECT_EQ(exportedJson(release, {0})["sources"].size(), 1U);
    EXPECT_EQ(exportedJson(release, {0, 1})["sources"].size(), 2U);
}

TEST(GeoJsonExport, DrawsAFacilityAsAPoint) {
    OpenMapRelease release = makeRelease();
    release.assets[0].longitude = -118.267891;
    release.assets[0].latitude = 55.5;
    EXPECT_EQ(exportedJson(release, {0})["features"][0]["geometry"],
              Json::parse(R"({"type":"Point","coordinates":[-118.267891,55.5]})"));
}

TEST(GeoJsonExport, DrawsAPipelineAsLines) {
    OpenMapRelease release = makeRelease();
    release.assets[1].routes = {{{-110, 50}, {-109.5, 50.25}}, {{-90, 45}, {-89, 45}, {-88, 46}}};
    EXPECT_EQ(exportedJson(release, {1})["features"][0]["geometry"],
              Json::parse(R"({"type":"MultiLineString","coordinates":
                  [[[-110,50],[-109.5,50.25]],[[-90,45],[-89,45],[-88,46]]]})"));
}

TEST(GeoJsonExport, HoldsTheRecordAndItsFactsEachWithItsSource) {
    OpenMapRelease release = makeRelease();
    OpenMapRelease::Asset& record = release.assets[0];
    record.asOf = "2016";
    record.facts = {{"Emissions", "1 \"kt\"\t\u00e9", sourceID(0), "2021"}};
    const Json properties = exportedJson(release, {0})["features"][0]["properties"];
    EXPECT_EQ(properties["id"], record.id);
    EXPECT_EQ(properties["name"], record.name);
    EXPECT_EQ(properties["category_key"], record.kind);
    EXPECT_EQ(properties["category"], record.category());
    EXPECT_EQ(properties["period"], "2016");
    EXPECT_EQ(properties["source"], "NPRI");
    EXPECT_EQ(properties["licence"], release.sources[0].licenceURL);
    EXPECT_EQ(properties["attribution"], release.sources[0].attribution);
    const Json fact = properties["facts"][0];
    EXPECT_EQ(fact["label"], "Emissions");
    EXPECT_EQ(fact["value"], "1 \"kt\"\t\u00e9");
    EXPECT_EQ(fact["period"], "2021");
    EXPECT_EQ(fact["attribution"], release.sources[0].attribution);
}

TEST(GeoJsonExport, KeepsTheOrderItIsGivenAndMayBeEmpty) {
    const OpenMapRelease release = makeRelease();
    const Json collection = exportedJson(release, {1, 0});
    EXPECT_EQ(collection["features"][0]["properties"]["id"], "A-1");
    EXPECT_EQ(collection["features"][1]["properties"]["id"], "A-0");
    EXPECT_EQ(exportedJson(release, {})["features"], Json::array());
}

TEST(GeoJsonExport, EscapesEveryControlCharacter) {
    OpenMapRelease release = makeRelease();
    release.assets[0].name.clear();
    for (char byte = 0; byte < 0x20; ++byte) {
        release.assets[0].name += byte;
    }
    EXPECT_EQ(exportedJson(release, {0})["features"][0]["properties"]["name"],
              release.assets[0].name);
}

TEST(GeoJsonExport, EndsWhereItsSinkWantsNoMore) {
    const OpenMapRelease release = makeRelease();
    const std::vector<AssetIndex> many(10'000, 0);
    EXPECT_EQ(exportGeoJson(release, many, geoJsonHeader, [](std::string_view) { return false; }),
              ExportOutcome::stopped);
}

} // namespace
} // namespace vasker
