#include "map/style/MapTheme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

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

using ColorRole = QColor MapTheme::*;

constexpr std::array areas{&MapTheme::land,
                           &MapTheme::water,
                           &MapTheme::urban,
                           &MapTheme::green,
                           &MapTheme::ice,
                           &MapTheme::building};
constexpr std::array labels{
    &MapTheme::placeLabel, &MapTheme::regionLabel, &MapTheme::waterLabel, &MapTheme::recordLabel};

void expectReadableRecords(BasemapTheme theme, double least = 3) {
    const MapTheme& colors = mapTheme(theme);
    for (const QColor& record : colors.records) {
        for (const ColorRole area : areas) {
            EXPECT_GE(contrast(record, colors.*area), least)
                << record.name().toStdString() << " on " << (colors.*area).name().toStdString();
        }
    }
}

TEST(MapTheme, RecordsStandThreeToOneAgainstEveryAreaOfTheLightMap) {
    expectReadableRecords(BasemapTheme::light);
}

TEST(MapTheme, RecordsStandThreeToOneAgainstEveryAreaOfTheDarkMap) {
    expectReadableRecords(BasemapTheme::dark);
}

TEST(MapTheme, RoadsAreNearlyColourlessOnTheDrawnMap) {
    for (const BasemapTheme theme : {BasemapTheme::light, BasemapTheme::dark}) {
        const MapTheme& colors = mapTheme(theme);
        for (const ColorRole role : {&MapTheme::mainRoad,
                                     &MapTheme::minorRoad,
                                     &MapTheme::thinRoad,
                                     &MapTheme::roadCasing}) {
            const QColor color = colors.*role;
            const int most = std::max({color.red(), color.green(), color.blue()});
            const int least = std::min({color.red(), color.green(), color.blue()});
            EXPECT_LE(most - least, 20) << color.name().toStdString();
        }
    }
}

TEST(MapTheme, LabelsStandOutFromTheirHalo) {
    for (const BasemapTheme theme :
         {BasemapTheme::light, BasemapTheme::dark, BasemapTheme::satellite, BasemapTheme::hybrid}) {
        const MapTheme& colors = mapTheme(theme);
        for (const ColorRole label : labels) {
            EXPECT_GE(contrast(colors.*label, colors.labelHalo), 4.5)
                << (colors.*label).name().toStdString();
        }
    }
}

constexpr std::array drawnHighContrast{BasemapTheme::lightHighContrast,
                                       BasemapTheme::darkHighContrast};
constexpr std::array everyHighContrast{BasemapTheme::lightHighContrast,
                                       BasemapTheme::darkHighContrast,
                                       BasemapTheme::satelliteHighContrast,
                                       BasemapTheme::hybridHighContrast};

TEST(MapTheme, InHighContrastRecordsStandFourAndAHalfToOneAgainstEveryArea) {
    for (const BasemapTheme theme : drawnHighContrast) {
        expectReadableRecords(theme, 4.5);
    }
}

TEST(MapTheme, InHighContrastRecordsStandOutFromAnOpaqueCasing) {
    for (const BasemapTheme theme : everyHighContrast) {
        const MapTheme& colors = mapTheme(theme);
        for (const QColor& record : colors.records) {
            EXPECT_GE(contrast(record, colors.markerCasing), 4.5);
            EXPECT_GE(contrast(record, colors.routeCasing), 4.5);
            EXPECT_GE(contrast(record, colors.pinSymbol), 4.5);
        }
        EXPECT_EQ(colors.markerCasing.alpha(), 255);
        EXPECT_EQ(colors.routeCasing.alpha(), 255);
    }
}

TEST(MapTheme, InHighContrastAnOutlineOfMarkersStandsOutFromTheirCasing) {
    for (const BasemapTheme theme : everyHighContrast) {
        const MapTheme& colors = mapTheme(theme);
        EXPECT_EQ(colors.markerOutline.alpha(), 255);
        EXPECT_GE(contrast(colors.markerOutline, colors.markerCasing), 15);
    }
}

TEST(MapTheme, InHighContrastLabelsStandSevenToOneAgainstAnOpaqueHaloAndEveryArea) {
    for (const BasemapTheme theme : everyHighContrast) {
        const MapTheme& colors = mapTheme(theme);
        EXPECT_EQ(colors.labelHalo.alpha(), 255);
        for (const ColorRole label : labels) {
            EXPECT_GE(contrast(colors.*label, colors.labelHalo), 7)
                << (colors.*label).name().toStdString();
            EXPECT_EQ((colors.*label).alpha(), 255);
        }
    }
    for (const BasemapTheme theme : drawnHighContrast) {
        const MapTheme& colors = mapTheme(theme);
        for (const ColorRole label : labels) {
            for (const ColorRole area : areas) {
                EXPECT_GE(contrast(colors.*label, colors.*area), 7)
                    << (colors.*label).name().toStdString();
            }
        }
    }
}

TEST(MapTheme, InHighContrastEveryLineStandsThreeToOneAgainstLandAndWater) {
    for (const BasemapTheme theme : drawnHighContrast) {
        const MapTheme& colors = mapTheme(theme);
        for (const ColorRole line : {&MapTheme::coast,
                                     &MapTheme::river,
                                     &MapTheme::thinRoad,
                                     &MapTheme::roadCasing,
                                     &MapTheme::rail,
                                     &MapTheme::regionBorder,
                                     &MapTheme::countryBorder}) {
            EXPECT_GE(contrast(colors.*line, colors.land), 3)
                << (colors.*line).name().toStdString();
            EXPECT_GE(contrast(colors.*line, colors.water), 3)
                << (colors.*line).name().toStdString();
        }
    }
}

} // namespace
} // namespace vasker
