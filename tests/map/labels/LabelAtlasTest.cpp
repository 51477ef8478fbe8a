#include "map/labels/LabelAtlas.h"

#include "platform/ui/theme/Fonts.h"

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
            BasemapTheme theme = BasemapTheme::light) {
    return {text, style, theme};
}

QString longTitle() {
    return QStringLiteral("North West Redwater Partnership Sturgeon Refinery Bitumen Blending ")
        .repeated(3)
        .trimmed();
}

/// The pixels of a place.
QImage pixelsOf(const LabelAtlas& atlas, const std::optional<LabelAtlas::Place>& place) {
    if (!place) {
        return {};
    }
    const QImage& page = atlas.page(place->page);
    const double density = page.devicePixelRatio();
    const QRectF region = place->region;
    return page.copy(QRectF(region.topLeft() * density, region.size() * density).toAlignedRect());
}

/// How much of an image is covered, in pixels.
double coverageOf(const QImage& image) {
    double coverage = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            coverage += image.pixelColor(x, y).alpha() / 255.0;
        }
    }
    return coverage;
}

bool isEmpty(const QImage& row) {
    return coverageOf(row) == 0;
}

TEST_F(LabelAtlasTest, ATextIsDrawnOnceAndFoundAgain) {
    LabelAtlas atlas(1);
    const auto place = atlas.place(label(QStringLiteral("Edmonton")));
    ASSERT_TRUE(place);
    const qint64 image = atlas.page(place->page).cacheKey();
    EXPECT_GT(coverageOf(pixelsOf(atlas, place)), 100);
    const auto again = atlas.place(label(QStringLiteral("Edmonton")));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->page, place->page);
    EXPECT_EQ(again->region, place->region);
    EXPECT_EQ(atlas.page(place->page).cacheKey(), image);
}

TEST_F(LabelAtlasTest, MeasuringDrawsNothing) {
    LabelAtlas atlas(1);
    const qint64 image = atlas.page(0).cacheKey();
    const Label edmonton = label(QStringLiteral("Edmonton"));
    EXPECT_FALSE(atlas.knows(edmonton));
    EXPECT_FALSE(atlas.size(edmonton).isEmpty());
    EXPECT_TRUE(atlas.knows(edmonton));
    EXPECT_EQ(atlas.page(0).cacheKey(), image);
}

TEST_F(LabelAtlasTest, TextsOfOtherStylesAndThemesStandApart) {
    LabelAtlas atlas(1);
    std::vector<LabelAtlas::Place> places;
    for (const LabelStyle style : {LabelStyle::country,
                                   LabelStyle::region,
                                   LabelStyle::city,
                                   LabelStyle::town,
                                   LabelStyle::water,
                                   LabelStyle::record}) {
        for (const BasemapTheme theme :
             {BasemapTheme::light, BasemapTheme::dark, BasemapTheme::hybrid}) {
            places.push_back(*atlas.place(label(QStringLiteral("Alberta"), style, theme)));
        }
    }
    places.push_back(atlas.placeMark(BasemapTheme::light));
    places.push_back(atlas.placeMark(BasemapTheme::dark));
    places.push_back(atlas.placeMark(BasemapTheme::hybridHighContrast));
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_FALSE(isEmpty(pixelsOf(atlas, places[i]))) << i;
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(places[i].page == places[k].page &&
                         places[i].region.intersects(places[k].region))
                << i << " and " << k;
        }
    }
}

TEST_F(LabelAtlasTest, TextAndHaloLieWhollyInTheirRegion) {
    // The rim of a region is empty: nothing was cut off.
    for (const double density : {1.0, 1.5, 2.0}) {
        LabelAtlas atlas(density);
        for (const QString& text : {QStringLiteral("Fjäll"), QStringLiteral("Wijk"), longTitle()}) {
            for (const LabelStyle style :
                 {LabelStyle::region, LabelStyle::water, LabelStyle::record}) {
                const QImage pixels = pixelsOf(atlas, atlas.place(label(text, style)));
                EXPECT_TRUE(isEmpty(pixels.copy(0, 0, pixels.width(), 1))) << density;
                EXPECT_TRUE(isEmpty(pixels.copy(0, pixels.height() - 1, pixels.width(), 1)))
                    << density;
            }
        }
    }
}

TEST_F(LabelAtlasTest, TheHaloIsWhatTheTextStandsOn) {
    // Light letters on the dark map, dark ones on the light map.
    LabelAtlas atlas(2);
    const auto lightnessOf = [&](BasemapTheme theme) {
        const QImage pixels =
            pixelsOf(atlas, atlas.place(label(QStringLiteral("HHHH"), LabelStyle::city, theme)));
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
    for (const BasemapTheme theme :
         {BasemapTheme::light, BasemapTheme::dark, BasemapTheme::hybrid, BasemapTheme::satellite}) {
        const std::array<int, 2> range = lightnessOf(theme);
        EXPECT_LT(range[0], 80);
        EXPECT_GT(range[1], 180);
    }
}

TEST_F(LabelAtlasTest, ALongTextTakesTwoLinesOfAboutOneLength) {
    LabelAtlas atlas(1);
    const QSizeF one = atlas.size(label(QStringLiteral("Yellowknife")));
    const QSizeF two = atlas.size(label(QStringLiteral("Saint-Louis-du-Ha! Ha! Sainte-Anne")));
    EXPECT_EQ(two.height(), 2 * one.height());
    EXPECT_LT(two.width(), 120);
}

TEST_F(LabelAtlasTest, ATextThatNeedsMoreThanTwoLinesEndsInAnEllipsis) {
    // What follows the ellipsis makes no difference; what stands before it does.
    LabelAtlas atlas(1);
    const QString title = longTitle();
    const auto place = atlas.place(label(title, LabelStyle::record));
    EXPECT_EQ(atlas.size(label(title, LabelStyle::record)).height(), 28);
    EXPECT_LE(place->region.width(), 170 + 2 * LabelAtlas::margin);
    const auto other = atlas.place(label(title + QStringLiteral(" and more"), LabelStyle::record));
    EXPECT_EQ(pixelsOf(atlas, other), pixelsOf(atlas, place));
    const QString fitting = title.left(20);
    EXPECT_NE(pixelsOf(atlas, atlas.place(label(fitting, LabelStyle::record))),
              pixelsOf(atlas, atlas.place(label(fitting + QChar(0x2026), LabelStyle::record))));
}

TEST_F(LabelAtlasTest, TextsOfAllScriptsAndSensesAreDrawnWithinTheirSize) {
    LabelAtlas atlas(2);
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
        const QSizeF size = atlas.size(label(text));
        const auto place = atlas.place(label(text));
        EXPECT_GT(size.width(), 0) << text.left(20).toStdString();
        EXPECT_LE(size.width(), 121) << text.left(20).toStdString();
        EXPECT_LE(size.height(), 28) << text.left(20).toStdString();
        EXPECT_FALSE(isEmpty(pixelsOf(atlas, place))) << text.left(20).toStdString();
    }
}

TEST_F(LabelAtlasTest, NoTextHasNoSizeAndNoPlace) {
    LabelAtlas atlas(1);
    for (const QString& text : {QString(), QStringLiteral("  \n ")}) {
        EXPECT_TRUE(atlas.size(label(text)).isEmpty());
        EXPECT_FALSE(atlas.place(label(text)));
    }
}

TEST_F(LabelAtlasTest, ANewTextChangesOnePageOnly) {
    LabelAtlas atlas(2);
    for (int i = 0; atlas.pages() < 3; ++i) {
        ASSERT_LT(i, 10'000);
        (void)atlas.place(label(QStringLiteral("Town %1").arg(i)));
    }
    std::vector<qint64> before;
    for (std::size_t page = 0; page < atlas.pages(); ++page) {
        before.push_back(atlas.page(page).cacheKey());
    }
    const auto place = atlas.place(label(QStringLiteral("Whitehorse")));
    ASSERT_TRUE(place);
    for (std::size_t page = 0; page < before.size(); ++page) {
        EXPECT_EQ(atlas.page(page).cacheKey() == before[page], page != place->page) << page;
    }
}

TEST_F(LabelAtlasTest, WhatAFrameUsesIsKeptHoweverMuchIsDrawn) {
    LabelAtlas atlas(1);
    atlas.beginFrame();
    const Label first = label(QStringLiteral("Whitehorse"));
    const auto place = atlas.place(first);
    const QImage before = pixelsOf(atlas, place);
    for (int i = 0; i < 2'000; ++i) {
        (void)atlas.place(label(QStringLiteral("A rather long name of a town %1").arg(i)));
    }
    EXPECT_EQ(pixelsOf(atlas, place), before);
}

TEST_F(LabelAtlasTest, ThePageUsedLongestAgoMakesRoomForNewTexts) {
    LabelAtlas atlas(1);
    atlas.beginFrame();
    const Label often = label(QStringLiteral("Whitehorse"));
    const Label seldom = label(QStringLiteral("A long name that is on the second page"));
    const auto place = atlas.place(often);
    for (int i = 0; atlas.pages() < 2; ++i) {
        (void)atlas.place(label(QStringLiteral("Town %1").arg(i)));
    }
    (void)atlas.place(seldom);
    std::size_t most = 0;
    for (int i = 0; i < 5'000; ++i) {
        atlas.beginFrame();
        ASSERT_EQ(atlas.place(often)->region, place->region) << "used in every frame";
        (void)atlas.place(label(QStringLiteral("A rather long name of a town %1").arg(i)));
        most = std::max(most, atlas.pages());
    }
    EXPECT_LE(most, 16U);
    EXPECT_FALSE(atlas.knows(seldom));
    EXPECT_FALSE(isEmpty(pixelsOf(atlas, atlas.place(seldom))));
}

TEST_F(LabelAtlasTest, AtTwiceTheDensityALabelIsAsLargeAndTwiceAsFine) {
    LabelAtlas one(1);
    LabelAtlas two(2);
    const Label name = label(QStringLiteral("Thunder Bay"), LabelStyle::city);
    EXPECT_NEAR(one.size(name).width(), two.size(name).width(), 2);
    EXPECT_NEAR(coverageOf(pixelsOf(two, two.place(name))) / 4,
                coverageOf(pixelsOf(one, one.place(name))),
                0.2 * coverageOf(pixelsOf(one, one.place(name))));
}

TEST_F(LabelAtlasTest, TheDesktopsTextScaleMakesLabelsLarger) {
    LabelAtlas plain(1);
    LabelAtlas large(1, 1.5);
    const Label name = label(QStringLiteral("Thunder Bay"));
    EXPECT_NEAR(large.size(name).width(), 1.5 * plain.size(name).width(), 8);
}

} // namespace
} // namespace vasker
