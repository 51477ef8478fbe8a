#include "map/geometry/Viewport.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(Viewport, ItsFreePartIsWhatTheMarginsLeave) {
    const Viewport view{900, 600, 50, 200, 300};
    EXPECT_EQ(view.freeHalf(), (ScreenPoint{200, 275}));
    EXPECT_EQ(view.middle(), (ScreenPoint{500, 275}));
    EXPECT_TRUE(view.isFree({300, 0}));
    EXPECT_TRUE(view.isFree({700, 550}));
    EXPECT_FALSE(view.isFree({299, 100}));
    EXPECT_FALSE(view.isFree({701, 100}));
    EXPECT_FALSE(view.isFree({400, 551}));
    EXPECT_FALSE(view.isFree({400, -1}));
}

TEST(Viewport, MarginsThatCoverAllLeaveAPixel) {
    EXPECT_EQ((Viewport{0, -5, 10, 10, 10}.usable()), (Viewport{1, 1, 0, 0, 0}));
    EXPECT_EQ((Viewport{400, 300, 500, 300, 500}.usable()), (Viewport{400, 300, 299, 300, 99}));
    EXPECT_EQ((Viewport{400, 300, -1, -1, -1}.usable()), (Viewport{400, 300, 0, 0, 0}));
}

} // namespace
} // namespace vasker
