#include "map/style/StyleLayer.h"

#include "map/geometry/TileCover.h"
#include "map/tiles/TileArchive.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

namespace vasker {
namespace {

const StyleLayer& layerOf(std::string_view id) {
    const auto found = std::ranges::find(styleLayers(), id, &StyleLayer::id);
    EXPECT_NE(found, styleLayers().end()) << id;
    return *found;
}

std::size_t placeOf(std::string_view id) {
    return static_cast<std::size_t>(&layerOf(id) - styleLayers().data());
}

TEST(StyleLayer, EachHasAnIdOfItsOwn) {
    std::set<std::string_view> ids;
    for (const StyleLayer& layer : styleLayers()) {
        EXPECT_FALSE(layer.id.empty());
        EXPECT_TRUE(ids.insert(layer.id).second) << layer.id;
        EXPECT_LT(layer.firstZoom, layer.lastZoom) << layer.id;
    }
}

TEST(StyleLayer, EveryFeatureClassIsDrawn) {
    std::set<FeatureClass> drawn;
    for (const StyleLayer& layer : styleLayers()) {
        drawn.insert(layer.features);
    }
    EXPECT_EQ(drawn.size(), featureClasses);
}

TEST(StyleLayer, AreasLieBelowLinesAndBordersAboveAll) {
    EXPECT_LT(placeOf("urban"), placeOf("ocean"));
    EXPECT_LT(placeOf("ocean"), placeOf("coast"));
    EXPECT_LT(placeOf("river"), placeOf("lake"));
    EXPECT_LT(placeOf("building-outline"), placeOf("ferry"));
    EXPECT_LT(placeOf("motorway"), placeOf("region-border"));
    EXPECT_EQ(placeOf("country-border"), styleLayers().size() - 1);
}

TEST(StyleLayer, NoCasingCutsTheFillOfAnotherRoad) {
    for (const StyleLayer& casing : styleLayers()) {
        for (const StyleLayer& fill : styleLayers()) {
            if (casing.casing > 0 && fill.casing == 0 && fill.features >= FeatureClass::service &&
                fill.features <= FeatureClass::motorway) {
                EXPECT_LT(&casing, &fill) << casing.id << " and " << fill.id;
            }
        }
    }
}

TEST(StyleLayer, ARoadIsDrawnAtEveryZoomFromItsFirstOn) {
    for (const char* id : {"service", "street", "tertiary", "secondary", "primary", "motorway"}) {
        const StyleLayer& thin = layerOf(std::string(id) + "-thin");
        const StyleLayer& full = layerOf(id);
        EXPECT_EQ(thin.lastZoom, full.firstZoom) << id;
        EXPECT_EQ(layerOf(std::string(id) + "-casing").firstZoom, full.firstZoom) << id;
    }
}

TEST(StyleLayer, OverImageryNoAreaIsFilled) {
    for (const StyleLayer& layer : styleLayers()) {
        if (layer.kind == StyleLayer::Kind::fill) {
            EXPECT_EQ((mapTheme(BasemapTheme::hybrid).*layer.color).alpha(), 0) << layer.id;
        }
    }
}

TEST(StyleLayer, OverEnlargedImageryOnlyWatersAreDrawnAndAllOfThem) {
    const auto isWater = [](FeatureClass features) {
        return features == FeatureClass::ocean || features == FeatureClass::lake ||
               features == FeatureClass::river || features == FeatureClass::stream;
    };
    EXPECT_TRUE(std::ranges::all_of(waterLayers(), isWater, &StyleLayer::features));
    EXPECT_EQ(std::ranges::count_if(styleLayers(), isWater, &StyleLayer::features),
              std::ssize(waterLayers()));
}

TEST(StyleLayer, AWidthGrowsLinearlyBetweenItsStopsAndIsConstantOutside) {
    const WidthStops stops{{{4, 1}, {6, 2}, {8, 4}, {10, 4}, {12, 4}}};
    EXPECT_DOUBLE_EQ(widthAt(stops, 0), 1);
    EXPECT_DOUBLE_EQ(widthAt(stops, 5), 1.5);
    EXPECT_DOUBLE_EQ(widthAt(stops, 7), 3);
    EXPECT_DOUBLE_EQ(widthAt(stops, 22), 4);
}

TEST(StyleLayer, NoLineGrowsThinnerAsTheMapComesNearer) {
    for (const StyleLayer& layer : styleLayers()) {
        if (layer.kind == StyleLayer::Kind::fill) {
            continue;
        }
        for (double zoom = 0; zoom < 22; zoom += 0.25) {
            EXPECT_GT(widthAt(layer.widths, zoom), 0) << layer.id;
            EXPECT_LE(widthAt(layer.widths, zoom), widthAt(layer.widths, zoom + 0.25)) << layer.id;
        }
    }
}

TEST(StyleLayer, GreaterRoadsAreWiderAndComeFirst) {
    const std::array ascending{"service", "street", "tertiary", "secondary", "primary", "motorway"};
    for (std::size_t i = 1; i < ascending.size(); ++i) {
        const StyleLayer& lesser = layerOf(std::string(ascending[i - 1]) + "-thin");
        const StyleLayer& greater = layerOf(std::string(ascending[i]) + "-thin");
        EXPECT_GE(lesser.firstZoom, greater.firstZoom);
        for (double zoom = lesser.firstZoom; zoom < 22; zoom += 0.5) {
            EXPECT_LE(widthAt(lesser.widths, zoom), widthAt(greater.widths, zoom)) << zoom;
        }
    }
}

/// What of each class the built-in basemap has in Canada's surroundings.
std::map<FeatureClass, int> classesOfTheBasemap(int zoom) {
    const auto archive = TileArchive::open(VASKER_RESOURCES "/basemap.mbtiles");
    EXPECT_NE(archive, nullptr);
    std::map<FeatureClass, int> counts;
    const Camera canada(canadaOverview, {1280, 800});
    for (const CoverTile& tile : tileCover(canada, zoom, 0)) {
        const auto stored = archive->tile(tile.key);
        const auto inflated = stored ? inflatedTile(*stored) : std::nullopt;
        const auto decoded = inflated ? decodeVectorTile(*inflated) : std::nullopt;
        for (const VectorLayer& layer : decoded ? decoded->layers : std::vector<VectorLayer>()) {
            for (const VectorFeature& feature : layer.features) {
                if (const auto found = featureClass(layer.name, feature)) {
                    ++counts[*found];
                }
            }
        }
    }
    return counts;
}

TEST(StyleLayer, TheListDrawsWhatTheBuiltInBasemapHas) {
    const auto counts = classesOfTheBasemap(6);
    for (const FeatureClass each : {FeatureClass::lake,
                                    FeatureClass::river,
                                    FeatureClass::urban,
                                    FeatureClass::motorway,
                                    FeatureClass::primary,
                                    FeatureClass::region,
                                    FeatureClass::country}) {
        ASSERT_TRUE(counts.contains(each)) << static_cast<int>(each);
        const bool isDrawn = std::ranges::any_of(styleLayers(), [each](const StyleLayer& layer) {
            return layer.features == each && layer.firstZoom <= 6 && layer.lastZoom > 6;
        });
        EXPECT_TRUE(isDrawn) << static_cast<int>(each);
    }
}

} // namespace
} // namespace vasker
