#include "map/geometry/MapRect.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(MapRect, TheNullRectangleIsTheIdentityOfUnion) {
    const MapRect rect{3, 4, 5, 6};
    EXPECT_EQ(MapRect::null().united(rect), rect);
    EXPECT_EQ(rect.united(MapRect::null()), rect);
    EXPECT_TRUE(MapRect::null().united(MapRect::null()).isNull());
}

TEST(MapRect, AUnionHoldsBoth) {
    EXPECT_EQ((MapRect{0, 0, 1, 1}.united({10, -5, 2, 2})), (MapRect{0, -5, 12, 6}));
}

TEST(MapRect, ANegativeInsetGrowsOnEverySide) {
    EXPECT_EQ((MapRect{10, 20, 100, 200}.inset(-15, -30)), (MapRect{-5, -10, 130, 260}));
}

TEST(MapRect, RectanglesThatShareAnEdgeIntersect) {
    EXPECT_TRUE((MapRect{0, 0, 1, 1}.intersects({1, 0, 1, 1})));
    EXPECT_TRUE((MapRect{1, 0, 1, 1}.intersects({0, 0, 1, 1})));
    EXPECT_TRUE((MapRect{0, 0, 1, 1}.intersects({0, 1, 1, 1})));
    EXPECT_TRUE((MapRect{0, 1, 1, 1}.intersects({0, 0, 1, 1})));
    EXPECT_FALSE((MapRect{0, 0, 1, 1}.intersects({1.5, 0, 1, 1})));
    EXPECT_FALSE((MapRect{1.5, 0, 1, 1}.intersects({0, 0, 1, 1})));
    EXPECT_FALSE((MapRect{0, 0, 1, 1}.intersects({0, 1.5, 1, 1})));
    EXPECT_FALSE((MapRect{0, 1.5, 1, 1}.intersects({0, 0, 1, 1})));
    EXPECT_FALSE((MapRect::null().intersects({-10, -10, 100, 100})));
}

TEST(MapRect, ARectangleWithoutExtentContainsItsPoint) {
    EXPECT_TRUE((MapRect{5, 5, 0, 0}.contains({5, 5})));
    EXPECT_FALSE(MapRect::null().isNull() && MapRect::null().contains({0, 0}));
}

} // namespace
} // namespace vasker
