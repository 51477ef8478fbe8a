// When the images of raster tiles are handed over, and when it is told that there are new ones.

#include "map/basemap/TilePyramid.h"
#include "tests/map/basemap/TilePyramidFixture.h"

#include <set>

namespace vasker {
namespace {

class TilePyramidImagesTest : public TilePyramidFixture {
  protected:
    TilePyramidImagesTest() { writeLand(); }
};

TEST_F(TilePyramidImagesTest, AfterTexturesWereLostTheirImagesAreHandedOverAgain) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    look();
    EXPECT_TRUE(frame.isComplete);
    textures.clear();
    pyramid->handOverAgain();
    look();
    EXPECT_FALSE(frame.isComplete);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_TRUE(hasNoHole());
    EXPECT_EQ(middleColor(), land);
}

TEST_F(TilePyramidImagesTest, AnImageIsHandedOverOnce) {
    openWithoutServices();
    std::set<TileNumber> handedOver;
    ASSERT_TRUE(lookUntil([&] {
        for (const TileImage& each : frame.tiles.newImages) {
            EXPECT_TRUE(handedOver.insert(each.tile).second);
            EXPECT_FALSE(each.image.isNull());
        }
        return frame.isComplete;
    }));
    EXPECT_GE(handedOver.size(), 4U);
    look();
    EXPECT_TRUE(frame.tiles.newImages.empty());
}

TEST_F(TilePyramidImagesTest, ImagesThatAreNotSeenYetAreHandedOverAFewAFrame) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    scaleTo(1.2);
    look();
    library->workers().wait(pyramid.get(), std::chrono::milliseconds(10'000));
    std::size_t handedOver = 0;
    ASSERT_TRUE(lookUntil([&] {
        EXPECT_LE(frame.tiles.newImages.size(), 3U);
        handedOver += frame.tiles.newImages.size();
        return frame.scale == view.camera.scale();
    }));
    EXPECT_GE(handedOver, 4U);
}

TEST_F(TilePyramidImagesTest, ImagesThatAreHandedOverAheadAreNotSeen) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    view.theme = BasemapTheme::dark;
    look();
    library->workers().wait(pyramid.get(), std::chrono::milliseconds(10'000));
    const ScreenPoint focus = view.camera.focus();
    bool areSomeHandedOver = false;
    ASSERT_TRUE(lookUntil([&] {
        for (const double x : {-20, 20}) {
            for (const double y : {-20, 20}) {
                EXPECT_EQ(colorAt({focus.x + x, focus.y + y}),
                          frame.isComplete ? mapTheme(BasemapTheme::dark).land : land);
            }
        }
        areSomeHandedOver |= !frame.isComplete && !frame.tiles.newImages.empty();
        return frame.isComplete;
    }));
    EXPECT_TRUE(areSomeHandedOver);
}

TEST_F(TilePyramidImagesTest, ImagesThatNeedNoTextureAreShownInTheNextFrame) {
    openWithoutServices();
    view.uploads = false;
    ASSERT_TRUE(lookUntilComplete());
    scaleTo(1.2);
    look();
    library->workers().wait(pyramid.get(), std::chrono::milliseconds(10'000));
    look();
    EXPECT_EQ(frame.scale, view.camera.scale());
    EXPECT_GE(frame.tiles.newImages.size(), 4U);
}

TEST_F(TilePyramidImagesTest, TilesThatComeOneByOneAreToldOfTogether) {
    openWithoutServices();
    int told = 0;
    QObject::connect(pyramid.get(), &TilePyramid::changed, [&told] { ++told; });
    look();
    library->workers().wait(pyramid.get(), std::chrono::milliseconds(10'000));
    EXPECT_GE(told, 1);
    EXPECT_LE(told, 2) << "when the world is covered, and when the view is";
    look();
    EXPECT_GE(frame.tiles.newImages.size(), 4U);
    const int atOnce = told;
    EXPECT_TRUE(comesTrue([&] { return told > atOnce; })) << "the rest, a moment later";
}

} // namespace
} // namespace vasker
