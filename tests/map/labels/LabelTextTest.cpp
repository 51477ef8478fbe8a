#include "map/labels/LabelText.h"

#include "map/style/MapTheme.h"
#include "platform/ui/theme/Fonts.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace vasker {
namespace {

class LabelTextTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { installInterfaceFont(); }
};

TEST_F(LabelTextTest, WatersAreSetInItalicsAndAreasSpacedOut) {
    EXPECT_TRUE(labelFont(LabelStyle::water, 1).italic());
    for (const LabelStyle style : {LabelStyle::country, LabelStyle::region}) {
        EXPECT_FALSE(labelFont(style, 1).italic());
        EXPECT_GT(labelFont(style, 1).letterSpacing(), 1);
        EXPECT_NEAR(
            labelFont(style, 2).letterSpacing(), 2 * labelFont(style, 1).letterSpacing(), 0.05);
    }
    for (const LabelStyle style : {LabelStyle::city, LabelStyle::town, LabelStyle::record}) {
        EXPECT_FALSE(labelFont(style, 1).italic());
        EXPECT_EQ(labelFont(style, 1).letterSpacing(), 0);
    }
}

TEST_F(LabelTextTest, CitiesStandOutAmongTowns) {
    EXPECT_GT(labelFont(LabelStyle::city, 1).weight(), labelFont(LabelStyle::town, 1).weight());
    EXPECT_GT(labelFont(LabelStyle::city, 1).pointSizeF(),
              labelFont(LabelStyle::town, 1).pointSizeF());
}

TEST_F(LabelTextTest, TheTextScaleOfTheDesktopMakesLettersLarger) {
    EXPECT_NEAR(labelFont(LabelStyle::town, 1.5).pointSizeF(),
                1.5 * labelFont(LabelStyle::town, 1).pointSizeF(),
                1e-6);
}

TEST_F(LabelTextTest, TheMarkOfAPlaceIsARingInAHalo) {
    const MapTheme& colors = mapTheme(BasemapTheme::lightHighContrast);
    QImage image(90, 90, QImage::Format_ARGB32_Premultiplied); // ten pixels each
    image.setDevicePixelRatio(10);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintPlaceMark(painter, {4.5, 4.5}, BasemapTheme::lightHighContrast);
    painter.end();
    for (const QPoint direction : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
        const auto colorAt = [&](int distance) {
            return image.pixelColor(QPoint(45, 45) + distance * direction).rgb();
        };
        EXPECT_EQ(colorAt(0), colors.labelHalo.rgb());
        EXPECT_EQ(colorAt(22), colors.placeLabel.rgb());
        EXPECT_EQ(colorAt(36), colors.labelHalo.rgb());
        EXPECT_EQ(image.pixelColor(QPoint(45, 45) + 44 * direction).alpha(), 0);
    }
}

/// Where the dark of the lines of a block begins and ends, in pixels, the upper one first.
std::vector<std::pair<int, int>> extentsOfLines(LabelAlignment alignment) {
    QImage image(120, 28, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const SetText text{QStringLiteral("A long upper line\u2028short"), image.size()};
    paintLabel(painter, text, {{}, LabelStyle::record, BasemapTheme::light, alignment}, 1);
    painter.end();
    std::vector<std::pair<int, int>> extents;
    for (const int top : {0, 14}) {
        std::pair extent{image.width(), 0};
        for (int y = top; y < top + 14; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).lightness() < 128) {
                    extent = {std::min(extent.first, x), std::max(extent.second, x)};
                }
            }
        }
        extents.push_back(extent);
    }
    return extents;
}

TEST_F(LabelTextTest, TheLinesOfATextAreCentredOrBeginOrEndTogether) {
    const auto centred = extentsOfLines(LabelAlignment::centred);
    EXPECT_GT(centred[1].first, centred[0].first + 15);
    EXPECT_NEAR(centred[1].first + centred[1].second, centred[0].first + centred[0].second, 4);
    const auto left = extentsOfLines(LabelAlignment::left);
    EXPECT_NEAR(left[1].first, left[0].first, 2);
    EXPECT_LT(left[1].first, 4);
    const auto right = extentsOfLines(LabelAlignment::right);
    EXPECT_NEAR(right[1].second, right[0].second, 2);
    EXPECT_GT(right[1].second, 114);
}

} // namespace
} // namespace vasker
