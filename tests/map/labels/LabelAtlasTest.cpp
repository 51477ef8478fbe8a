#include "map/labels/LabelAtlas.h"

#include "platform/ui/Fonts.h"

#include <gtest/gtest.h>

#include <array>

namespace vasker {
namespace {

class LabelAtlasTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { installInterfaceFont(); }
};

Label label(const QString& text,
            LabelStyle style = LabelStyle::town,
            BasemapTheme look = BasemapTheme::light) {
    return {text, style, look};
}

QString longTitle() {
    return QStringLiteral("North West Redwater Partnership Sturgeon Refinery Bitumen Blending ")
        .repeated(3)
        .trimmed();
}

/// The picture's pixels of a cut.
QImage pixelsOf(const LabelAtlas& picture, const QRectF& cut) {
    const double density = picture.image().devicePixelRatio();
    return picture.image().copy(
        QRectF(cut.topLeft() * density, cut.size() * density).toAlignedRect());
}

double inkOf(const QImage& image) {
    double ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ink += image.pixelColor(x, y).alpha() / 255.0;
        }
    }
    return ink;
}

bool isEmpty(const QImage& row) {
    return inkOf(row) == 0;
}

TEST_F(LabelAtlasTest, ATextIsDrawnOnceAndFoundAgain) {
    LabelAtlas picture(1);
    const QRectF cut = picture.cut(label(QStringLiteral("Edmonton")));
    const std::uint64_t revision = picture.revision();
    EXPECT_GT(inkOf(pixelsOf(picture, cut)), 100);
    EXPECT_EQ(picture.cut(label(QStringLiteral("Edmonton"))), cut);
    EXPECT_EQ(picture.revision(), revision);
}

TEST_F(LabelAtlasTest, MeasuringDrawsNothing) {
    LabelAtlas picture(1);
    const std::uint64_t revision = picture.revision();
    const QSizeF size = picture.size(label(QStringLiteral("Calgary")));
    EXPECT_GT(size.width(), 30);
    EXPECT_EQ(size.height(), 14);
    EXPECT_EQ(picture.revision(), revision);
    EXPECT_EQ(picture.cut(label(QStringLiteral("Calgary"))).size(),
              size + QSizeF(2 * LabelAtlas::margin, 2 * LabelAtlas::margin));
}

TEST_F(LabelAtlasTest, TextsOfOtherStylesAndLooksStandApart) {
    LabelAtlas picture(1);
    std::vector<QRectF> cuts;
    for (const LabelStyle style : {LabelStyle::country,
                                   LabelStyle::region,
                                   LabelStyle::city,
                                   LabelStyle::town,
                                   LabelStyle::water,
                                   LabelStyle::title}) {
        for (const BasemapTheme look :
             {BasemapTheme::light, BasemapTheme::dark, BasemapTheme::hybrid}) {
            cuts.push_back(picture.cut(label(QStringLiteral("Alberta"), style, look)));
        }
    }
    cuts.push_back(picture.markCut(BasemapTheme::light));
    cuts.push_back(picture.markCut(BasemapTheme::dark));
    for (std::size_t i = 0; i < cuts.size(); ++i) {
        EXPECT_FALSE(isEmpty(pixelsOf(picture, cuts[i]))) << i;
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(cuts[i].intersects(cuts[k])) << i << " and " << k;
        }
    }
}

TEST_F(LabelAtlasTest, TextAndHaloLieWhollyInTheirCut) {
    // The rim of a cut is empty: nothing was cut off.
    for (const double density : {1.0, 1.5, 2.0}) {
        LabelAtlas picture(density);
        for (const QString& text : {QStringLiteral("Fjäll"), QStringLiteral("Wijk"), longTitle()}) {
            for (const LabelStyle style :
                 {LabelStyle::region, LabelStyle::water, LabelStyle::title}) {
                const QImage pixels = pixelsOf(picture, picture.cut(label(text, style)));
                EXPECT_TRUE(isEmpty(pixels.copy(0, 0, pixels.width(), 1))) << density;
                EXPECT_TRUE(isEmpty(pixels.copy(0, pixels.height() - 1, pixels.width(), 1)))
                    << density;
            }
        }
    }
}

TEST_F(LabelAtlasTest, TheHaloIsWhatTheTextStandsOn) {
    // Light letters on the dark map, dark ones on the light map.
    LabelAtlas picture(2);
    const auto lightnessOf = [&](BasemapTheme look) {
        const QImage pixels =
            pixelsOf(picture, picture.cut(label(QStringLiteral("HHHH"), LabelStyle::city, look)));
        std::array<int, 2> range{255, 0};
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                const QColor color = pixels.pixelColor(x, y);
                if (color.alpha() > 200) {
                    range[0] = std::min(range[0], color.lightness());
                    range[1] = std::max(range[1], color.lightness());
                }
            }
        }
        return range;
    };
    for (const BasemapTheme look :
         {BasemapTheme::light, BasemapTheme::dark, BasemapTheme::hybrid, BasemapTheme::satellite}) {
        const std::array<int, 2> range = lightnessOf(look);
        EXPECT_LT(range[0], 80);
        EXPECT_GT(range[1], 180);
    }
}

TEST_F(LabelAtlasTest, ALongNameTakesTwoLinesOfAboutOneLength) {
    LabelAtlas picture(1);
    const QSizeF one = picture.size(label(QStringLiteral("Yellowknife")));
    const QSizeF two = picture.size(label(QStringLiteral("Saint-Louis-du-Ha! Ha! Sainte-Anne")));
    EXPECT_EQ(two.height(), 2 * one.height());
    EXPECT_LT(two.width(), 120);
}

TEST_F(LabelAtlasTest, ATitleThatNeedsMoreThanTwoLinesEndsInAnEllipsis) {
    // What follows the ellipsis makes no difference; what stands before it does.
    LabelAtlas picture(1);
    const QString title = longTitle();
    const QRectF cut = picture.cut(label(title, LabelStyle::title));
    EXPECT_EQ(picture.size(label(title, LabelStyle::title)).height(), 28);
    EXPECT_LE(cut.width(), 170 + 2 * LabelAtlas::margin);
    const QRectF other = picture.cut(label(title + QStringLiteral(" and more"), LabelStyle::title));
    EXPECT_EQ(pixelsOf(picture, other), pixelsOf(picture, cut));
    const QString fitting = title.left(20);
    EXPECT_NE(pixelsOf(picture, picture.cut(label(fitting, LabelStyle::title))),
              pixelsOf(picture, picture.cut(label(fitting + QChar(0x2026), LabelStyle::title))));
}

TEST_F(LabelAtlasTest, TextsOfAllScriptsAndSensesAreDrawnWithinTheirSize) {
    LabelAtlas picture(2);
    const std::array texts{
        QStringLiteral("\u0627\u0644\u0645\u063A\u0631\u0628"),                 // right to left
        QStringLiteral("\u05D9\u05E8\u05D5\u05E9\u05DC\u05D9\u05DD Jerusalem"), // both ways
        QStringLiteral("Z\u0351\u036B\u0343\u036A\u0302\u036B\u033D\u034F\u0334\u0319\u0324"),
        QStringLiteral("\u1403\u14C4\u1483\u144E\u1466"), // syllabics
        QStringLiteral("\U0001F3D4 Lake Louise"),
        QStringLiteral("line\nbreak\tand\u2028more"),
        QString(QChar(0xD800)), // half a letter
        QStringLiteral("M").repeated(100'000),
    };
    for (const QString& text : texts) {
        const QSizeF size = picture.size(label(text));
        const QRectF cut = picture.cut(label(text));
        EXPECT_GT(size.width(), 0) << text.left(20).toStdString();
        EXPECT_LE(size.width(), 121) << text.left(20).toStdString();
        EXPECT_LE(size.height(), 28) << text.left(20).toStdString();
        EXPECT_FALSE(isEmpty(pixelsOf(picture, cut))) << text.left(20).toStdString();
    }
}

TEST_F(LabelAtlasTest, NoTextHasNoSizeAndNoCut) {
    LabelAtlas picture(1);
    for (const QString& text : {QString(), QStringLiteral("  \n ")}) {
        EXPECT_TRUE(picture.size(label(text)).isEmpty());
        EXPECT_TRUE(picture.cut(label(text)).isEmpty());
    }
}

TEST_F(LabelAtlasTest, WhatWasDrawnSurvivesThePicturesGrowth) {
    LabelAtlas picture(2);
    const Label first = label(QStringLiteral("Whitehorse"));
    const QRectF cut = picture.cut(first);
    const QImage before = pixelsOf(picture, cut);
    const int height = picture.image().height();
    for (int i = 0; picture.image().height() == height; ++i) {
        ASSERT_LT(i, 10'000);
        (void)picture.cut(label(QStringLiteral("Town %1").arg(i)));
    }
    EXPECT_EQ(picture.generation(), 0U);
    EXPECT_EQ(picture.cut(first), cut);
    EXPECT_EQ(pixelsOf(picture, cut), before);
}

TEST_F(LabelAtlasTest, AFullPictureStartsAnewAndSaysSo) {
    LabelAtlas picture(4);
    const Label first = label(QStringLiteral("Whitehorse"));
    (void)picture.cut(first);
    for (int i = 0; picture.generation() == 0; ++i) {
        ASSERT_LT(i, 10'000);
        (void)picture.cut(label(QStringLiteral("A rather long name of a town %1").arg(i)));
    }
    EXPECT_LE(picture.image().height(), 4096);
    const QRectF again = picture.cut(first);
    EXPECT_FALSE(isEmpty(pixelsOf(picture, again)));
}

TEST_F(LabelAtlasTest, AtTwiceTheDensityALabelIsAsLargeAndTwiceAsFine) {
    LabelAtlas one(1);
    LabelAtlas two(2);
    const Label name = label(QStringLiteral("Thunder Bay"), LabelStyle::city);
    EXPECT_NEAR(one.size(name).width(), two.size(name).width(), 2);
    EXPECT_NEAR(inkOf(pixelsOf(two, two.cut(name))) / 4,
                inkOf(pixelsOf(one, one.cut(name))),
                0.2 * inkOf(pixelsOf(one, one.cut(name))));
}

TEST_F(LabelAtlasTest, TheDesktopsTextScaleMakesNamesLarger) {
    LabelAtlas plain(1);
    LabelAtlas large(1, 1.5);
    const Label name = label(QStringLiteral("Thunder Bay"));
    EXPECT_NEAR(large.size(name).width(), 1.5 * plain.size(name).width(), 8);
}

} // namespace
} // namespace vasker
