#include "map/style/Dashes.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace vasker {
namespace {

/// The dashes of a level line from `from` to `to`, each as "start-end", with dashes of 5 pixels and
/// gaps of 3 in a tile that ends at 0 in the west.
std::string dashesBetween(double from, double to) {
    std::ostringstream drawn;
    dashes({QPointF(from, 50), QPointF(to, 50)},
           5,
           3,
           QRectF(0, 0, 512, 512),
           [&](const QPolygonF& dash) {
               drawn << dash.front().x() << '-' << dash.back().x() << ' ';
               return true;
           });
    return drawn.str();
}

TEST(Dashes, ALineBeginsAndEndsInTheMiddleOfADash) {
    EXPECT_EQ(dashesBetween(100, 124), "100-102.5 105.5-110.5 113.5-118.5 121.5-124 ");
    EXPECT_EQ(dashesBetween(100, 108), "100-102.5 105.5-108 ");
}

TEST(Dashes, TheyAreStretchedToFit) {
    EXPECT_EQ(dashesBetween(100, 110), "100-103.125 106.875-110 ");
}

TEST(Dashes, ALineTooShortForAGapIsWhole) {
    EXPECT_EQ(dashesBetween(100, 103), "100-103 ");
}

TEST(Dashes, WhereALineCrossesTheTilesEdgeADashHasItsMiddle) {
    EXPECT_EQ(dashesBetween(-8, 8), "-8--5.5 -2.5-0 0-2.5 5.5-8 ");
}

TEST(Dashes, ADashGoesRoundCorners) {
    int corners = 0;
    const QPolygonF line{QPointF(10, 10), QPointF(12, 10), QPointF(12, 16)};
    dashes(line, 5, 3, QRectF(0, 0, 512, 512), [&](const QPolygonF& dash) {
        corners += dash.size() == 3 ? 1 : 0;
        return true;
    });
    EXPECT_EQ(corners, 1);
}

TEST(Dashes, TheyEndWhereNoMoreAreWanted) {
    int drawn = 0;
    const QPolygonF line{QPointF(-400, 50), QPointF(400, 50)};
    dashes(line, 5, 3, QRectF(0, 0, 512, 512), [&](const QPolygonF&) { return ++drawn < 3; });
    EXPECT_EQ(drawn, 3);
}

TEST(Dashes, APointHasNone) {
    int drawn = 0;
    dashes({QPointF(10, 10)}, 5, 3, QRectF(0, 0, 512, 512), [&](const QPolygonF&) {
        ++drawn;
        return true;
    });
    EXPECT_EQ(drawn, 0);
}

TEST(Dashes, TheLengthOfALineIsThatOfItsSteps) {
    EXPECT_EQ(lengthOf({QPointF(0, 0), QPointF(3, 4), QPointF(3, 10)}), 11);
    EXPECT_EQ(lengthOf({QPointF(3, 4)}), 0);
}

} // namespace
} // namespace vasker
