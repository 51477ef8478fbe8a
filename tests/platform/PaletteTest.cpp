#include "platform/ui/Palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

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

struct Ground {
    const char* name;
    QRgb color;
};

constexpr std::array lightGrounds{Ground{"list", 0xFFFFFFFF},
                                  Ground{"selected row", 0xFFE4EDFB},
                                  Ground{"land", 0xFFF4F2EC},
                                  Ground{"urban land", 0xFFE5DFD5},
                                  Ground{"ice", 0xFFFCFDFD},
                                  Ground{"water", 0xFFCBDFEA}};
constexpr std::array darkGrounds{Ground{"list", 0xFF1D2125},
                                 Ground{"selected row", 0xFF2A3A50},
                                 Ground{"land", 0xFF262B30},
                                 Ground{"urban land", 0xFF33383E},
                                 Ground{"ice", 0xFF353C43},
                                 Ground{"water", 0xFF151E27}};

void expectContrast(ColorScheme scheme, const auto& grounds) {
    for (int number = 0; number < paletteSize; ++number) {
        const QColor color = colorValue(static_cast<PaletteColor>(number), scheme);
        for (const Ground& ground : grounds) {
            EXPECT_GE(contrast(color, QColor::fromRgb(ground.color)), smallestContrast)
                << color.name().toStdString() << " on " << ground.name;
        }
    }
}

TEST(Palette, ContrastIsMeasuredAsItIsDefined) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast(QColor(0x96, 0x79, 0x07), QColor(0xCB, 0xDF, 0xEA)), 3.04, 0.005);
}

TEST(Palette, EveryColorStandsOutFromEveryLightGround) {
    expectContrast(ColorScheme::light, lightGrounds);
}

TEST(Palette, EveryColorStandsOutFromEveryDarkGround) {
    expectContrast(ColorScheme::dark, darkGrounds);
}

TEST(Palette, NoTwoColorsAreAlike) {
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        std::set<QRgb> values;
        for (int number = 0; number < paletteSize; ++number) {
            values.insert(colorValue(static_cast<PaletteColor>(number), scheme).rgb());
        }
        EXPECT_EQ(values.size(), paletteSize);
    }
}

} // namespace
} // namespace vasker
