#include "map/style/MapTheme.h"

#include <gtest/gtest.h>

#include <algorithm>
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

void expectReadableRecords(BasemapTheme theme) {
    const MapTheme& colors = mapTheme(theme);
    for (int i = 0; i < paletteSize; ++i) {
        const QColor record = colorValue(static_cast<PaletteColor>(i), colors.records);
        for (const ColorRole area : {&MapTheme::land,
                                     &MapTheme::water,
                                     &MapTheme::urban,
                                     &MapTheme::green,
                                     &MapTheme::ice,
                                     &MapTheme::building}) {
            EXPECT_GE(contrast(record, colors.*area), 3)
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
        for (const ColorRole label : {&MapTheme::placeLabel,
                                      &MapTheme::regionLabel,
                                      &MapTheme::waterLabel,
                                      &MapTheme::recordLabel}) {
            EXPECT_GE(contrast(colors.*label, colors.labelHalo), 4.5)
                << (colors.*label).name().toStdString();
        }
    }
}

} // namespace
} // namespace vasker
