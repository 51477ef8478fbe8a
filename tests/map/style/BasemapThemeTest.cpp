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
