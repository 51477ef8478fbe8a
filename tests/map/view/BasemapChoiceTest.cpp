#include "map/view/BasemapChoice.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(BasemapChoice, SatelliteAndHybridShowPhotographsInEitherAppearance) {
    for (const bool dark : {false, true}) {
        EXPECT_EQ(basemapLook(QStringLiteral("satellite"), dark), BasemapLook::satellite);
        EXPECT_EQ(basemapLook(QStringLiteral("hybrid"), dark), BasemapLook::hybrid);
    }
}

TEST(BasemapChoice, StandardIsTheDrawnMapInTheAppearanceOfTheDesktop) {
    EXPECT_EQ(basemapLook(QStringLiteral("standard"), false), BasemapLook::light);
    EXPECT_EQ(basemapLook(QStringLiteral("standard"), true), BasemapLook::dark);
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
        EXPECT_EQ(basemapLook(basemap, false), BasemapLook::light) << basemap.toStdString();
        EXPECT_EQ(basemapLook(basemap, true), BasemapLook::dark) << basemap.toStdString();
    }
    EXPECT_EQ(basemapLook({}, false), BasemapLook::light);
}

} // namespace
} // namespace vasker
