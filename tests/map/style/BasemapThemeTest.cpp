#include "map/style/BasemapTheme.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(BasemapChoice, SatelliteAndHybridShowPhotographsInEitherAppearance) {
    for (const bool dark : {false, true}) {
        EXPECT_EQ(basemapTheme(QStringLiteral("satellite"), dark), BasemapTheme::satellite);
        EXPECT_EQ(basemapTheme(QStringLiteral("hybrid"), dark), BasemapTheme::hybrid);
    }
}

TEST(BasemapChoice, StandardIsTheDrawnMapInTheAppearanceOfTheDesktop) {
    EXPECT_EQ(basemapTheme(QStringLiteral("standard"), false), BasemapTheme::light);
    EXPECT_EQ(basemapTheme(QStringLiteral("standard"), true), BasemapTheme::dark);
}

TEST(BasemapChoice, EveryThemeHasItsOwnForHighContrast) {
    EXPECT_EQ(basemapTheme(QStringLiteral("standard"), false, true),
              BasemapTheme::lightHighContrast);
    EXPECT_EQ(basemapTheme(QStringLiteral("standard"), true, true), BasemapTheme::darkHighContrast);
    EXPECT_EQ(basemapTheme(QStringLiteral("satellite"), true, true),
              BasemapTheme::satelliteHighContrast);
    EXPECT_EQ(basemapTheme(QStringLiteral("hybrid"), false, true),
              BasemapTheme::hybridHighContrast);
}

TEST(BasemapTheme, HighContrastShowsWhatTheUsualThemeDoes) {
    for (const QString& basemap :
         {QStringLiteral("standard"), QStringLiteral("satellite"), QStringLiteral("hybrid")}) {
        const BasemapTheme usual = basemapTheme(basemap, true);
        const BasemapTheme high = basemapTheme(basemap, true, true);
        EXPECT_EQ(showsImagery(high), showsImagery(usual));
        EXPECT_EQ(showsVectorTiles(high), showsVectorTiles(usual));
        EXPECT_EQ(withoutImagery(usual), BasemapTheme::dark);
        EXPECT_EQ(withoutImagery(high), BasemapTheme::darkHighContrast);
    }
}

TEST(BasemapChoice, EverythingElseIsTheDrawnMapToo) {
    for (const char16_t* other : {u"",
                                  u" ",
                                  u"Standard",
                                  u"Satellite",
                                  u"SATELLITE",
                                  u"Hybrid",
                                  u"hybrid ",
                                  u" hybrid",
                                  u"satellite\n",
                                  u"hybrid,satellite",
                                  u"terrain"}) {
        const QString basemap = QString::fromUtf16(other);
        EXPECT_EQ(basemapTheme(basemap, false), BasemapTheme::light) << basemap.toStdString();
        EXPECT_EQ(basemapTheme(basemap, true), BasemapTheme::dark) << basemap.toStdString();
    }
    EXPECT_EQ(basemapTheme({}, false), BasemapTheme::light);
}

} // namespace
} // namespace vasker
