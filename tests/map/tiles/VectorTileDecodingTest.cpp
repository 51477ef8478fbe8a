#include "map/tiles/VectorTileDecoding.h"

#include <gtest/gtest.h>
#include <protozero/pbf_writer.hpp>

#include <cmath>
#include <limits>

namespace vasker {
namespace {

using protozero::encode_zigzag32;
using protozero::pbf_writer;
using Numbers = std::vector<std::uint32_t>;
using Points = std::vector<TilePoint>;

constexpr std::uint32_t pointType = 1;
constexpr std::uint32_t lineType = 2;
constexpr std::uint32_t polygonType = 3;
constexpr std::uint32_t closePath = 1 << 3 | 7;

std::uint32_t moveTo(std::uint32_t count) {
    return count << 3 | 1;
}
std::uint32_t lineTo(std::uint32_t count) {
    return count << 3 | 2;
}
std::uint32_t by(std::int32_t distance) {
    return encode_zigzag32(distance);
}

struct Feature {
    std::uint32_t type;
    Numbers geometry;
    Numbers tags = {};
};

struct Layer {
    std::string name;
    std::vector<Feature> features;
    std::vector<std::string> keys = {};
    std::vector<std::string> values = {}; ///< messages
    std::uint32_t extent = 4096;
};

std::string textValue(const std::string& text) {
    std::string bytes;
    pbf_writer(bytes).add_string(1, text);
    return bytes;
}

std::string bytesOf(const Layer& layer) {
    std::string bytes;
    pbf_writer writer(bytes);
    writer.add_string(1, layer.name);
    for (const Feature& feature : layer.features) {
        pbf_writer part(writer, 2);
        part.add_packed_uint32(2, feature.tags.begin(), feature.tags.end());
        part.add_enum(3, static_cast<std::int32_t>(feature.type));
        part.add_packed_uint32(4, feature.geometry.begin(), feature.geometry.end());
    }
    for (const std::string& key : layer.keys) {
        writer.add_string(3, key);
    }
    for (const std::string& value : layer.values) {
        writer.add_message(4, value);
    }
    writer.add_uint32(5, layer.extent);
    writer.add_uint32(15, 2);
    return bytes;
}

std::string bytesOf(const std::vector<Layer>& layers) {
    std::string bytes;
    pbf_writer writer(bytes);
    for (const Layer& layer : layers) {
        writer.add_message(3, bytesOf(layer));
    }
    return bytes;
}

/// The first feature of the first layer, which must be there.
VectorFeature only(const Layer& layer) {
    const auto tile = decodeVectorTile(bytesOf(std::vector{layer}));
    if (!tile || tile->layers.size() != 1 || tile->layers.front().features.size() != 1) {
        ADD_FAILURE() << "not one feature of one layer";
        return {};
    }
    return tile->layers.front().features.front();
}

std::size_t featureCount(const Layer& layer) {
    const auto tile = decodeVectorTile(bytesOf(std::vector{layer}));
    return tile && !tile->layers.empty() ? tile->layers.front().features.size() : 0;
}

const Feature aPoint{pointType, {moveTo(1), by(1024), by(3072)}};

TEST(VectorTile, NoBytesAreAnEmptyTile) {
    const auto tile = decodeVectorTile("");
    ASSERT_TRUE(tile.has_value());
    EXPECT_TRUE(tile->layers.empty());
}

TEST(VectorTile, PointsAreFractionsOfTheTile) {
    const auto feature = only({"places", {aPoint}});
    EXPECT_EQ(feature.geometry, VectorFeature::Geometry::points);
    EXPECT_EQ(feature.parts, (std::vector<Points>{{{0.25F, 0.75F}}}));
}

TEST(VectorTile, PointsOfOneFeatureAreOnePart) {
    const auto feature =
        only({"places", {{pointType, {moveTo(2), by(0), by(0), by(4096), by(-64)}}}});
    EXPECT_EQ(feature.parts, (std::vector<Points>{{{0, 0}, {1, -0.015625F}}}));
}

TEST(VectorTile, LinesHaveAPartForEachStroke) {
    const auto feature = only({"streets",
                               {{lineType,
                                 {moveTo(1),
                                  by(0),
                                  by(0),
                                  lineTo(1),
                                  by(2048),
                                  by(0),
                                  moveTo(1),
                                  by(0),
                                  by(2048),
                                  lineTo(2),
                                  by(0),
                                  by(1024),
                                  by(0),
                                  by(1024)}}}});
    EXPECT_EQ(feature.geometry, VectorFeature::Geometry::lines);
    EXPECT_EQ(feature.parts,
              (std::vector<Points>{{{0, 0}, {0.5, 0}}, {{0.5, 0.5}, {0.5, 0.75}, {0.5, 1}}}));
}

TEST(VectorTile, RingsAreClosedAndTheCursorStaysWhereItWas) {
    const auto feature = only({"ocean",
                               {{polygonType,
                                 {moveTo(1),
                                  by(0),
                                  by(0),
                                  lineTo(2),
                                  by(4096),
                                  by(0),
                                  by(0),
                                  by(4096),
                                  closePath,
                                  moveTo(1),
                                  by(-2048),
                                  by(-2048),
                                  lineTo(2),
                                  by(0),
                                  by(1024),
                                  by(1024),
                                  by(0),
                                  closePath}}}});
    EXPECT_EQ(feature.geometry, VectorFeature::Geometry::polygon);
    EXPECT_EQ(feature.parts,
              (std::vector<Points>{{{0, 0}, {1, 0}, {1, 1}, {0, 0}},
                                   {{0.5, 0.5}, {0.5, 0.75}, {0.75, 0.75}, {0.5, 0.5}}}));
}

TEST(VectorTile, TheExtentScales) {
    Layer layer{"places", {{pointType, {moveTo(1), by(128), by(256)}}}};
    layer.extent = 512;
    EXPECT_EQ(only(layer).parts, (std::vector<Points>{{{0.25, 0.5}}}));
}

TEST(VectorTile, AttributesAreReadInEveryTypeOfValue) {
    Layer layer{"place_labels", {aPoint}};
    layer.keys = {"kind",
                  "name",
                  "name_en",
                  "name_fr",
                  "population",
                  "admin_level",
                  "rank",
                  "way_area",
                  "disputed",
                  "maritime",
                  "rail",
                  "link",
                  "tunnel",
                  "unknown"};
    std::vector<std::string> values(9);
    pbf_writer(values[0]).add_string(1, "Québec");
    pbf_writer(values[1]).add_uint64(5, 624'177);
    pbf_writer(values[2]).add_sint64(6, -3);
    pbf_writer(values[3]).add_double(3, 12.5);
    pbf_writer(values[4]).add_float(2, 4.0F);
    pbf_writer(values[5]).add_bool(7, true);
    pbf_writer(values[6]).add_int64(4, 1);
    pbf_writer(values[7]).add_string(1, "Quebec City");
    pbf_writer(values[8]).add_string(1, "capital");
    layer.values = values;
    layer.features[0].tags = {0, 8, 1, 0, 2, 7, 3,  0, 4,  1, 5,  4, 6,  2,
                              7, 3, 8, 5, 9, 6, 10, 5, 11, 6, 12, 5, 13, 0};
    const auto feature = only(layer);
    EXPECT_EQ(feature.kind, "capital");
    EXPECT_EQ(feature.name, "Québec");
    EXPECT_EQ(feature.nameEnglish, "Quebec City");
    EXPECT_EQ(feature.nameFrench, "Québec");
    EXPECT_EQ(feature.population, 624'177);
    EXPECT_EQ(feature.adminLevel, 4);
    EXPECT_EQ(feature.rank, -3);
    EXPECT_EQ(feature.wayArea, 12.5);
    EXPECT_TRUE(feature.disputed && feature.maritime && feature.rail);
    EXPECT_TRUE(feature.link && feature.tunnel);
}

TEST(VectorTile, AttributesThatAreNotThereAreEmpty) {
    const auto feature = only({"place_labels", {aPoint}});
    EXPECT_EQ(feature.kind + feature.name + feature.nameEnglish + feature.nameFrench, "");
    EXPECT_EQ(feature.population, 0);
    EXPECT_FALSE(feature.disputed || feature.maritime || feature.rail || feature.link);
}

TEST(VectorTile, NumbersBeyondTheirFieldAreItsLimits) {
    Layer layer{"place_labels", {aPoint}, {"population", "admin_level", "way_area"}};
    std::vector<std::string> values(3);
    pbf_writer(values[0]).add_uint64(5, std::numeric_limits<std::uint64_t>::max());
    pbf_writer(values[1]).add_double(3, -1e300);
    pbf_writer(values[2]).add_double(3, std::numeric_limits<double>::quiet_NaN());
    layer.values = values;
    layer.features[0].tags = {0, 0, 1, 1, 2, 2};
    const auto feature = only(layer);
    EXPECT_EQ(feature.population, 9'000'000'000'000'000);
    EXPECT_EQ(feature.adminLevel, -std::numeric_limits<int>::max());
    EXPECT_EQ(feature.wayArea, 0);
}

TEST(VectorTile, TagsThatPointNowhereArePassedOver) {
    Layer layer{"place_labels", {aPoint}, {"name"}, {textValue("Banff")}};
    layer.features[0].tags = {7, 0, 0, 9, 4'000'000'000, 4'000'000'000, 0, 0, 0};
    EXPECT_EQ(only(layer).name, "Banff");
}

TEST(VectorTile, ATextTooLongForANameIsPassedOver) {
    Layer layer{"place_labels", {aPoint}, {"name"}, {textValue(std::string(257, 'x'))}};
    layer.features[0].tags = {0, 0};
    EXPECT_EQ(only(layer).name, "");
    layer.values = {textValue(std::string(256, 'x'))};
    EXPECT_EQ(only(layer).name.size(), 256U);
}

TEST(VectorTile, ATileThatRepeatsOneTextToFillMemoryIsRefused) {
    Layer layer{"place_labels", {}, {"name"}, {textValue(std::string(256, 'x'))}};
    layer.features.assign(2'000, {pointType, {moveTo(1), by(0), by(0)}, {0, 0}});
    EXPECT_FALSE(decodeVectorTile(bytesOf(std::vector{layer})).has_value());
}

std::string repeated(std::uint32_t field, const std::string& message, std::size_t times) {
    std::string bytes;
    pbf_writer writer(bytes);
    for (; times > 0; --times) {
        writer.add_message(field, message);
    }
    return bytes;
}

TEST(VectorTile, ATileIsDecodedUpToItsMemoryAndNotBeyond) {
    const auto decoded = [](std::size_t features) {
        return decodeVectorTile(
            bytesOf(std::vector{Layer{"x", std::vector<Feature>(features, aPoint)}}));
    };
    const std::size_t most = maximumDecodedBytes / decoded(1).value().memoryBytes();
    EXPECT_LE(decoded(most - 1).value().memoryBytes(), maximumDecodedBytes);
    EXPECT_FALSE(decoded(most + 1).has_value());
}

TEST(VectorTile, ValuesAndLayersCountAsMemoryOfATile) {
    const std::string name = "\x0a\x01x";
    EXPECT_FALSE(decodeVectorTile(repeated(3, name + repeated(4, "", 3'000'000), 1)).has_value());
    EXPECT_FALSE(decodeVectorTile(repeated(3, name, 1'300'000)).has_value());
    EXPECT_TRUE(decodeVectorTile(repeated(3, name + repeated(4, "", 1'000), 1'000)).has_value());
}

TEST(VectorTile, GeometryThatBreaksOffCostsTheFeature) {
    const std::vector<Numbers> broken{
        {},
        {moveTo(1)},
        {moveTo(1), by(5)},
        {moveTo(1), by(0), by(0), lineTo(3), by(1), by(1)},
        {moveTo(0x1FFFFFFF), by(0), by(0)},
        {moveTo(1), by(0), by(0), lineTo(0x1FFFFFFF), by(1), by(1)},
        {lineTo(2), by(1), by(1), by(1), by(1)},
        {moveTo(0), lineTo(0)},
        {closePath},
        {moveTo(1), by(0), by(0), 1 << 3 | 4, by(1), by(1)},
        {moveTo(1), by(0), by(0), lineTo(2), by(9), by(0), by(0), by(9), 5 << 3 | 7},
    };
    for (std::size_t i = 0; i < broken.size(); ++i) {
        for (const std::uint32_t type : {lineType, polygonType}) {
            EXPECT_EQ(featureCount({"x", {{type, broken[i]}}}), 0U) << i << ' ' << type;
        }
    }
}

TEST(VectorTile, ABrokenFeatureCostsNoOther) {
    EXPECT_EQ(featureCount({"x", {{lineType, {moveTo(9)}}, aPoint, {9, {moveTo(1), 0, 0}}}}), 1U);
}

TEST(VectorTile, PartsTooShortAreLeftOut) {
    EXPECT_EQ(featureCount({"x", {{lineType, {moveTo(2), by(0), by(0), by(9), by(9)}}}}), 0U);
    EXPECT_EQ(
        featureCount(
            {"x", {{polygonType, {moveTo(1), by(0), by(0), lineTo(1), by(9), by(0), closePath}}}}),
        0U);
}

TEST(VectorTile, WhatReachesFarBeyondTheTileIsPassedOver) {
    const std::int32_t far = 64 * 4096;
    EXPECT_EQ(featureCount({"x", {{pointType, {moveTo(1), by(far), by(-far)}}}}), 1U);
    EXPECT_EQ(featureCount({"x", {{pointType, {moveTo(1), by(far + 1), by(0)}}}}), 0U);
    const std::int32_t most = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(
        featureCount(
            {"x", {{lineType, {moveTo(1), by(most), by(most), lineTo(1), by(most), by(most)}}}}),
        0U);
}

TEST(VectorTile, ALayerWithASenselessExtentOrNameIsPassedOver) {
    for (const auto& [extent, layers] :
         {std::pair(0U, 0U), {1U << 24, 1U}, {(1U << 24) + 1, 0U}, {~0U, 0U}}) {
        Layer layer{"x", {aPoint}};
        layer.extent = extent;
        EXPECT_EQ(decodeVectorTile(bytesOf(std::vector{layer})).value().layers.size(), layers);
    }
    EXPECT_EQ(decodeVectorTile(bytesOf({{"", {aPoint}}}))->layers.size(), 0U);
    EXPECT_EQ(decodeVectorTile(bytesOf({{std::string(256, 'a'), {aPoint}}}))->layers.size(), 1U);
    EXPECT_EQ(decodeVectorTile(bytesOf({{std::string(257, 'a'), {aPoint}}}))->layers.size(), 0U);
}

TEST(VectorTile, ALayerIsFoundByItsName) {
    const auto tile = decodeVectorTile(bytesOf({{"a", {aPoint}}, {"b", {aPoint, aPoint}}}));
    ASSERT_TRUE(tile.has_value());
    ASSERT_NE(tile->layer("b"), nullptr);
    EXPECT_EQ(tile->layer("b")->features.size(), 2U);
    EXPECT_EQ(tile->layer("c"), nullptr);
}

TEST(VectorTile, ItsMemoryIsThatOfItsFeaturesPartsPointsAndTexts) {
    VectorFeature feature;
    feature.parts.assign(1'000, {{0, 0}, {1, 1}});
    feature.name = std::string(5'000, 'a');
    const VectorTile tile{{{"ocean", {feature}}}};
    const std::size_t least =
        sizeof(VectorFeature) + 1'000 * (sizeof(std::vector<TilePoint>) + 2 * sizeof(TilePoint));
    EXPECT_EQ(tile.memoryBytes(), least + 5'000);
    EXPECT_EQ(VectorTile().memoryBytes(), 0U);
}

TEST(VectorTile, TruncatedBytesAreRefusedOrLoseLayers) {
    const std::string bytes = bytesOf({{"a", {aPoint}, {"name"}, {textValue("Banff")}}});
    for (std::size_t size = 1; size < bytes.size(); ++size) {
        EXPECT_FALSE(decodeVectorTile(bytes.substr(0, size)).has_value()) << size;
    }
}

TEST(VectorTile, FieldsOfAnotherTypeArePassedOver) {
    std::string layer;
    pbf_writer writer(layer);
    writer.add_uint32(1, 7);
    writer.add_fixed64(2, 7);
    writer.add_double(3, 1);
    writer.add_fixed32(4, 1);
    writer.add_string(5, "extent");
    writer.add_string(1, "x");
    {
        pbf_writer feature(writer, 2);
        feature.add_uint32(2, 1);
        feature.add_string(3, "type");
        feature.add_fixed32(4, 1);
        feature.add_enum(3, 1);
        const Numbers geometry{moveTo(1), by(0), by(0)};
        feature.add_packed_uint32(4, geometry.begin(), geometry.end());
    }
    std::string bytes;
    pbf_writer tile(bytes);
    tile.add_uint32(3, 3);
    tile.add_message(3, layer);
    const auto decoded = decodeVectorTile(bytes);
    ASSERT_TRUE(decoded.has_value());
    ASSERT_NE(decoded->layer("x"), nullptr);
    EXPECT_EQ(decoded->layer("x")->features.size(), 1U);
}

TEST(VectorTile, AMillionEmptyFeaturesAreNone) {
    const std::string bytes = repeated(3, "\x0a\x01x" + repeated(2, "", 1'000'000), 1);
    const auto tile = decodeVectorTile(bytes);
    ASSERT_TRUE(tile.has_value());
    EXPECT_TRUE(tile->layer("x")->features.empty());
    EXPECT_LE(tile->layer("x")->features.capacity() * sizeof(VectorFeature), 50 * bytes.size());
}

} // namespace
} // namespace vasker
