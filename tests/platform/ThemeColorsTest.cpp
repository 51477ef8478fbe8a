#include "platform/ui/theme/ThemeColors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

namespace vasker {
namespace {

// Relative luminance and contrast as WCAG 2.2 defines them.
double linear(float channel) {
    const double c = static_cast<double>(channel);
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

constexpr double smallestContrast = 3;
constexpr double smallestTextContrast = 4.5;

struct Background {
    const char* name;
    QColor color;
};

std::vector<Background> backgrounds(const ThemeColors& colors) {
    return {{"window", colors.window},
            {"list", colors.surface},
            {"sheet", colors.sheet},
            {"card", colors.card},
            {"control", colors.control},
            {"menu", colors.raised},
            {"selected row", colors.selected}};
}

// Of the map, on which records are drawn as well.
const std::vector<Background> lightMap{
    {"land", 0xFFF4F2EC}, {"urban land", 0xFFE5DFD5}, {"ice", 0xFFFCFDFD}, {"water", 0xFFCBDFEA}};
const std::vector<Background> darkMap{
    {"land", 0xFF262B30}, {"urban land", 0xFF33383E}, {"ice", 0xFF353C43}, {"water", 0xFF151E27}};

void expectContrast(const char* what,
                    const QColor& color,
                    const std::vector<Background>& all,
                    double smallest) {
    for (const Background& background : all) {
        EXPECT_GE(contrast(color, background.color), smallest)
            << what << ' ' << color.name().toStdString() << " on " << background.name;
    }
}

void expectReadableRecords(ColorScheme scheme, const std::vector<Background>& map) {
    const ThemeColors& colors = themeColors(scheme);
    const std::vector<Background> list{{"list", colors.surface}, {"selected row", colors.selected}};
    for (int number = 0; number < paletteSize; ++number) {
        expectContrast("record", colors.record(number), list, smallestContrast);
        expectContrast("record", colors.record(number), map, smallestContrast);
    }
}

void expectReadableTexts(const ThemeColors& colors) {
    expectContrast("text", colors.text, backgrounds(colors), smallestTextContrast);
    expectContrast("text2", colors.text2, backgrounds(colors), smallestTextContrast);
    expectContrast("accent", colors.accent, backgrounds(colors), smallestTextContrast);
    expectContrast("text3", colors.text3, backgrounds(colors), smallestContrast);
    EXPECT_GE(contrast(colors.onAccent, colors.accent), smallestTextContrast);
}

TEST(ThemeColors, ContrastIsMeasuredAsItIsDefined) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast(QColor(0x96, 0x79, 0x07), QColor(0xCB, 0xDF, 0xEA)), 3.04, 0.005);
}

TEST(ThemeColors, EveryRecordColorStandsOutFromEveryLightBackground) {
    expectReadableRecords(ColorScheme::light, lightMap);
}

TEST(ThemeColors, EveryRecordColorStandsOutFromEveryDarkBackground) {
    expectReadableRecords(ColorScheme::dark, darkMap);
}

TEST(ThemeColors, EveryTextIsReadableOnEverySurface) {
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        expectReadableTexts(themeColors(scheme));
        expectReadableTexts(themeColors(scheme).withHighContrast());
    }
}

TEST(ThemeColors, HighContrastMakesLinesStandOutAndSecondaryTextsPrimary) {
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        const ThemeColors colors = themeColors(scheme).withHighContrast();
        EXPECT_EQ(colors.text2, colors.text);
        expectContrast("line", colors.line, backgrounds(colors), smallestContrast);
        EXPECT_EQ(colors.strip.alpha(), 255);
    }
}

TEST(ThemeColors, HighContrastMakesRecordColorsStandOutMore) {
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        const ThemeColors colors = themeColors(scheme).withHighContrast();
        for (int number = 0; number < paletteSize; ++number) {
            expectContrast("record",
                           colors.record(number),
                           {{"list", colors.surface}, {"selected row", colors.selected}},
                           smallestTextContrast);
        }
    }
}

TEST(ThemeColors, NoTwoRecordColorsAreAlike) {
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        for (const ThemeColors& colors :
             {themeColors(scheme), themeColors(scheme).withHighContrast()}) {
            std::set<QRgb> values;
            for (int number = 0; number < paletteSize; ++number) {
                values.insert(colors.record(number).rgb());
            }
            EXPECT_EQ(values.size(), paletteSize);
        }
    }
}

} // namespace
} // namespace vasker
