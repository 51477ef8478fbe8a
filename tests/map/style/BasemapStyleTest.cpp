#include "map/style/BasemapStyle.h"

#include "platform/ui/Palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace vasker {
namespace {

/// Relative luminance as the Web Content Accessibility Guidelines 2.1 define it.
double luminance(const QColor& color) {
    const auto linear = [](float channel) {
        const double value = static_cast<double>(channel);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

VectorFeature lineOfKind(const char* kind) {
    VectorFeature feature;
    feature.geometry = VectorFeature::Geometry::lines;
    feature.kind = kind;
    return feature;
}

void expectReadableRecords(BasemapTheme look, ColorScheme scheme) {
    const BasemapColors& colors = basemapColors(look);
    for (int i = 0; i < paletteSize; ++i) {
        const QColor record = colorValue(static_cast<PaletteColor>(i), scheme);
        for (const BasemapRole ground : {&BasemapColors::land,
                                         &BasemapColors::water,
                                         &BasemapColors::urban,
                                         &BasemapColors::green,
                                         &BasemapColors::ice,
                                         &BasemapColors::building}) {
            EXPECT_GE(contrast(record, colors.*ground), 3)
                << record.name().toStdString() << " on " << (colors.*ground).name().toStdString();
        }
    }
}

TEST(BasemapStyle, RecordsStandThreeToOneAgainstEveryGroundOfTheLightMap) {
    expectReadableRecords(BasemapTheme::light, ColorScheme::light);
}

TEST(BasemapStyle, RecordsStandThreeToOneAgainstEveryGroundOfTheDarkMap) {
    expectReadableRecords(BasemapTheme::dark, ColorScheme::dark);
}

TEST(BasemapStyle, RoadsAreNearlyColourlessOnTheDrawnMap) {
    for (const BasemapTheme look : {BasemapTheme::light, BasemapTheme::dark}) {
        const BasemapColors& colors = basemapColors(look);
        for (const BasemapRole role : {&BasemapColors::mainRoad,
                                       &BasemapColors::minorRoad,
                                       &BasemapColors::thinRoad,
                                       &BasemapColors::roadEdge}) {
            const QColor color = colors.*role;
            const int most = std::max({color.red(), color.green(), color.blue()});
            const int least = std::min({color.red(), color.green(), color.blue()});
            EXPECT_LE(most - least, 20) << color.name().toStdString();
        }
    }
}

TEST(BasemapStyle, OverImageryNoAreaIsFilled) {
    for (const AreaStyle& style : areaStyles()) {
        EXPECT_EQ((basemapColors(BasemapTheme::hybrid).*style.color).alpha(), 0);
    }
}

TEST(BasemapStyle, AWidthGrowsStraightBetweenItsStopsAndIsLevelOutside) {
    const WidthStops stops{{{4, 1}, {6, 2}, {8, 4}, {10, 4}, {12, 4}}};
    EXPECT_DOUBLE_EQ(widthAt(stops, 0), 1);
    EXPECT_DOUBLE_EQ(widthAt(stops, 5), 1.5);
    EXPECT_DOUBLE_EQ(widthAt(stops, 7), 3);
    EXPECT_DOUBLE_EQ(widthAt(stops, 22), 4);
}

TEST(BasemapStyle, NoLineGrowsThinnerAsTheMapComesNearer) {
    for (std::size_t i = 0; i < lineClasses; ++i) {
        const WidthStops& stops = lineStyle(static_cast<LineClass>(i)).widths;
        for (double zoom = 0; zoom < 22; zoom += 0.25) {
            EXPECT_GT(widthAt(stops, zoom), 0) << "class " << i;
            EXPECT_LE(widthAt(stops, zoom), widthAt(stops, zoom + 0.25)) << "class " << i;
        }
    }
}

TEST(BasemapStyle, GreaterRoadsAreWiderAndComeFirst) {
    const std::array ascending{LineClass::service,
                               LineClass::street,
                               LineClass::tertiary,
                               LineClass::secondary,
                               LineClass::primary,
                               LineClass::motorway};
    for (std::size_t i = 1; i < ascending.size(); ++i) {
        const LineStyle& lesser = lineStyle(ascending[i - 1]);
        const LineStyle& greater = lineStyle(ascending[i]);
        EXPECT_GE(lesser.firstZoom, greater.firstZoom);
        for (double zoom = lesser.firstZoom; zoom < 22; zoom += 0.5) {
            EXPECT_LE(widthAt(lesser.widths, zoom), widthAt(greater.widths, zoom)) << zoom;
        }
    }
}

TEST(BasemapStyle, LinesAreClassedByLayerAndKind) {
    EXPECT_EQ(lineClassOf("streets", lineOfKind("motorway")), LineClass::motorway);
    EXPECT_EQ(lineClassOf("streets", lineOfKind("trunk")), LineClass::primary);
    EXPECT_EQ(lineClassOf("streets", lineOfKind("residential")), LineClass::street);
    EXPECT_EQ(lineClassOf("water_lines", lineOfKind("river")), LineClass::river);
    EXPECT_EQ(lineClassOf("water_lines", lineOfKind("ditch")), LineClass::stream);
    EXPECT_EQ(lineClassOf("ferries", lineOfKind("")), LineClass::ferry);
    VectorFeature rail = lineOfKind("tram");
    rail.rail = true;
    EXPECT_EQ(lineClassOf("streets", rail), LineClass::rail);
    VectorFeature border = lineOfKind("");
    border.adminLevel = 2;
    EXPECT_EQ(lineClassOf("boundaries", border), LineClass::country);
    border.adminLevel = 4;
    EXPECT_EQ(lineClassOf("boundaries", border), LineClass::region);
}

TEST(BasemapStyle, WhatItDoesNotKnowIsNotDrawn) {
    EXPECT_EQ(lineClassOf("aerialways", lineOfKind("gondola")), std::nullopt);
    EXPECT_EQ(lineClassOf("streets", lineOfKind("hyperloop")), std::nullopt);
    EXPECT_EQ(areaStyleOf("street_polygons", "pedestrian"), std::nullopt);
    VectorFeature county = lineOfKind("");
    county.adminLevel = 6;
    EXPECT_EQ(lineClassOf("boundaries", county), std::nullopt);
}

TEST(BasemapStyle, AGlacierIsIceInEitherLayer) {
    for (const char* layer : {"land", "water_polygons"}) {
        const std::optional<std::size_t> style = areaStyleOf(layer, "glacier");
        ASSERT_TRUE(style);
        EXPECT_TRUE(areaStyles()[*style].color == &BasemapColors::ice);
    }
}

} // namespace
} // namespace vasker
