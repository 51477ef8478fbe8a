// What the archive that travels with the program holds.

#include "map/geometry/Projection.h"
#include "map/tiles/TileArchive.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <ostream>
#include <set>

namespace vasker {
namespace {

constexpr int deepestZoom = 7;

std::unique_ptr<TileArchive> basemap() {
    return TileArchive::open(VASKER_RESOURCES "/basemap.mbtiles");
}

TileKey keyAt(Coordinate place, int zoom) {
    const MapPoint point = coordinateToMapPoint(place);
    const double side = TileKey{zoom, 0, 0}.side();
    return {zoom, static_cast<int>(point.x / side), static_cast<int>(point.y / side)};
}

/// Odd-even, as the map fills.
bool contains(const VectorFeature& feature, TilePoint point) {
    bool inside = false;
    for (const auto& ring : feature.parts) {
        for (std::size_t i = 1; i < ring.size(); ++i) {
            const TilePoint a = ring[i - 1];
            const TilePoint b = ring[i];
            if ((a.y > point.y) != (b.y > point.y) &&
                point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
                inside = !inside;
            }
        }
    }
    return inside;
}

/// What covers a place at a zoom: "ocean", the kind of an inland water, or "land" where nothing
/// does.
std::string groundAt(Coordinate place, int zoom) {
    const auto archive = basemap();
    const auto found = archive->nearestTile(keyAt(place, zoom));
    const auto tile = decodeVectorTile(inflatedTile(found->bytes).value());
    const MapPoint point = coordinateToMapPoint(place);
    const MapRect bounds = found->key.bounds();
    const TilePoint inTile{static_cast<float>((point.x - bounds.x) / bounds.width),
                           static_cast<float>((point.y - bounds.y) / bounds.height)};
    std::string ground = "land";
    for (const char* name : {"water_polygons", "ocean"}) {
        if (const VectorLayer* layer = tile->layer(name)) {
            for (const VectorFeature& feature : layer->features) {
                if (contains(feature, inTile)) {
                    ground = layer->name == "ocean" ? "ocean" : feature.kind;
                }
            }
        }
    }
    return ground;
}

struct Contents {
    std::map<std::string, std::set<int>> zoomsOfLayers;
    /// Of every name, by its layer.
    std::map<std::string, std::map<std::string, std::string>> frenchNames;
    int tiles = 0;
    std::size_t largestTile = 0;
};

/// The whole archive, decoded once.
const Contents& contents() {
    static const Contents read = [] {
        Contents all;
        const auto archive = basemap();
        for (int zoom = 0; zoom <= deepestZoom; ++zoom) {
            for (std::int32_t index = 0; index < 1 << 2 * zoom; ++index) {
                const auto bytes = archive->tile({zoom, index >> zoom, index & ((1 << zoom) - 1)});
                if (!bytes) {
                    continue;
                }
                ++all.tiles;
                const auto inflated = inflatedTile(*bytes);
                const auto tile = inflated ? decodeVectorTile(*inflated) : std::nullopt;
                if (!tile || tile->layers.empty()) {
                    ADD_FAILURE() << "no tile at " << zoom << '/' << index;
                    continue;
                }
                all.largestTile = std::max(all.largestTile, inflated->size());
                for (const VectorLayer& layer : tile->layers) {
                    all.zoomsOfLayers[layer.name].insert(zoom);
                    for (const VectorFeature& feature : layer.features) {
                        if (!feature.name.empty()) {
                            all.frenchNames[layer.name][feature.name] = feature.nameFrench;
                        }
                    }
                }
            }
        }
        return all;
    }();
    return read;
}

void expectFrench(const std::string& layer, const std::map<std::string, std::string>& expected) {
    const auto& names = contents().frenchNames.at(layer);
    for (const auto& [name, french] : expected) {
        ASSERT_TRUE(names.contains(name)) << name;
        EXPECT_EQ(names.at(name), french);
    }
}

TEST(Basemap, IsSmall) {
    EXPECT_LT(std::filesystem::file_size(VASKER_RESOURCES "/basemap.mbtiles"), 12'000'000U);
    EXPECT_LT(contents().largestTile, 500'000U);
}

TEST(Basemap, GoesDownToItsDeepestZoomAndGivesCredit) {
    const auto archive = basemap();
    ASSERT_NE(archive, nullptr);
    EXPECT_EQ(archive->maximumZoom(), deepestZoom);
    EXPECT_EQ(archive->attribution(), "Made with Natural Earth");
}

TEST(Basemap, EveryTileDecodes) {
    EXPECT_GT(contents().tiles, 4'000);
}

TEST(Basemap, HasEachLayerFromItsZoomOn) {
    const std::map<std::string, int> firstZooms{{"ocean", 0},
                                                {"boundaries", 0},
                                                {"water_polygons", 0},
                                                {"water_polygons_labels", 0},
                                                {"boundary_labels", 1},
                                                {"place_labels", 1},
                                                {"water_lines", 2},
                                                {"land", 4},
                                                {"streets", 4},
                                                {"ferries", 5}};
    EXPECT_EQ(contents().zoomsOfLayers.size(), firstZooms.size());
    for (const auto& [layer, firstZoom] : firstZooms) {
        std::set<int> expected;
        for (int zoom = firstZoom; zoom <= deepestZoom; ++zoom) {
            expected.insert(zoom);
        }
        ASSERT_TRUE(contents().zoomsOfLayers.contains(layer)) << layer;
        EXPECT_EQ(contents().zoomsOfLayers.at(layer), expected) << layer;
    }
}

TEST(Basemap, KnowsProvincesAndTerritoriesInFrench) {
    const std::map<std::string, std::string> provinces{
        {"Alberta", "Alberta"},
        {"British Columbia", "Colombie-Britannique"},
        {"Manitoba", "Manitoba"},
        {"New Brunswick", "Nouveau-Brunswick"},
        {"Newfoundland and Labrador", "Terre-Neuve-et-Labrador"},
        {"Northwest Territories", "Territoires du Nord-Ouest"},
        {"Nova Scotia", "Nouvelle-Écosse"},
        {"Nunavut", "Nunavut"},
        {"Ontario", "Ontario"},
        {"Prince Edward Island", "Île-du-Prince-Édouard"},
        {"Québec", "Québec"},
        {"Saskatchewan", "Saskatchewan"},
        {"Yukon", "Yukon"}};
    expectFrench("boundary_labels", provinces);
}

TEST(Basemap, KnowsCountriesInFrench) {
    expectFrench("boundary_labels",
                 {{"United States", "États-Unis"},
                  {"México", "Mexique"},
                  {"Kalaallit Nunaat", "Groenland"}});
}

TEST(Basemap, KnowsSeasAndLakesInFrench) {
    expectFrench("water_polygons_labels",
                 {{"Hudson Bay", "Baie d'Hudson"},
                  {"Gulf of St. Lawrence", "Golfe du Saint-Laurent"},
                  {"Arctic Ocean", "Océan Arctique"},
                  {"Lake Superior", "Lac Supérieur"},
                  {"Great Slave Lake", "Grand lac des Esclaves"},
                  {"Lake of the Woods", "Lac des Bois"},
                  {"Wollaston Lake", "Lac Wollaston"}});
}

TEST(Basemap, HasNoNameThatTheSourceSpellsWrong) {
    const auto& towns = contents().frenchNames.at("place_labels");
    for (const char* wrong : {"Grand Prairie", "Val d'Or", "St.-Jerome"}) {
        EXPECT_FALSE(towns.contains(wrong)) << wrong;
    }
    EXPECT_TRUE(towns.contains("Grande Prairie"));
    const auto& waters = contents().frenchNames.at("water_polygons_labels");
    for (const char* wrong : {"ARCTIC OCEAN", "Aishik Lake", "Franois Lake", "Lac St.-Jean"}) {
        EXPECT_FALSE(waters.contains(wrong)) << wrong;
    }
    EXPECT_TRUE(waters.contains("Lac Saint-Jean"));
}

struct Ground {
    const char* where;
    Coordinate place;
    const char* ground;
    int firstZoom = 0;
};

void PrintTo(const Ground& ground, std::ostream* out) {
    *out << ground.where;
}

class BasemapGround : public testing::TestWithParam<Ground> {};

TEST_P(BasemapGround, IsRightAtEveryZoom) {
    const Ground& expected = GetParam();
    for (int zoom = expected.firstZoom; zoom <= deepestZoom + 3; ++zoom) {
        EXPECT_EQ(groundAt(expected.place, zoom), expected.ground)
            << expected.where << " at zoom " << zoom;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Places,
    BasemapGround,
    testing::Values(Ground{"Calgary", {51.05, -114.07}, "land"},
                    Ground{"Newfoundland", {48.5, -56.0}, "land"},
                    Ground{"Vancouver Island", {49.6, -125.6}, "land"},
                    Ground{"Anticosti", {49.5, -63.0}, "land", 1},
                    Ground{"Prince Edward Island", {46.4, -63.2}, "land", 2},
                    Ground{"Iceland", {64.9, -18.7}, "land"},
                    Ground{"Kansas, below the window", {37.8, -98.0}, "land"},
                    Ground{"the window's southern edge", {38.0, -98.0}, "land"},
                    Ground{"the Sahara", {23.0, 10.0}, "land"},
                    Ground{"Chukotka, west of the date line", {67.5, 179.0}, "land"},
                    Ground{"Chukotka, east of the date line", {66.5, -176.0}, "land"},
                    Ground{"the middle of Hudson Bay", {60.0, -85.0}, "ocean"},
                    Ground{"the Gulf of St. Lawrence", {48.2, -61.5}, "ocean"},
                    Ground{"the middle of the Pacific", {10.0, -150.0}, "ocean"},
                    Ground{"the Pacific on the date line", {10.0, 179.999}, "ocean"},
                    Ground{"the Pacific at the window's edge", {50.0, -170.0}, "ocean"},
                    Ground{"the Atlantic at the window's edge", {50.0, -45.0}, "ocean"},
                    Ground{"the Atlantic at the window's southern edge", {38.0, -60.0}, "ocean"},
                    Ground{"the edge of the detailed zooms", {40.0, -33.75}, "ocean"},
                    Ground{"the Arctic Ocean near the top of the map", {84.9, -100.0}, "ocean"},
                    Ground{"the Caspian Sea", {42.0, 50.7}, "water"},
                    Ground{"Lake Winnipeg", {52.5, -97.8}, "water", 2},
                    Ground{"Lake Superior", {47.6, -87.5}, "water", 2},
                    Ground{"Great Bear Lake", {66.0, -121.0}, "water", 2},
                    Ground{"Lake Victoria", {-1.0, 33.0}, "water", 2},
                    Ground{"Greenland's ice", {72.0, -40.0}, "glacier"},
                    Ground{"Greenland's ice where the source ends", {72.0, -45.0}, "glacier"},
                    Ground{"Antarctica", {-80.0, 60.0}, "glacier"},
                    Ground{"Antarctica at the bottom of the map", {-85.0, 0.0}, "glacier"}));

} // namespace
} // namespace vasker
