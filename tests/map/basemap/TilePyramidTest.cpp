#include "map/basemap/TilePyramid.h"

#include "map/style/BasemapStyle.h"
#include "tests/map/basemap/GatedInk.h"
#include "tests/map/basemap/TilePyramidFixture.h"

#include <future>

namespace vasker {
namespace {

using std::chrono::milliseconds;

class TilePyramidTest : public TilePyramidFixture {
  protected:
    TilePyramidTest() { writeLand(); }
    ~TilePyramidTest() override {
        ink->open(); // or the store would wait for ever
        close();
    }

    /// No picture is finished before ink->open().
    void useInk() {
        view.ink = [this](double) { return ink; };
    }
    void tilt(double pitch) {
        view.camera = Camera(view.camera.tilted(pitch).pose(), view.camera.viewport());
    }
    [[nodiscard]] bool isFading() const {
        return std::ranges::any_of(store->shown(), [](const ShownTile& shown) {
            return shown.opacity > 0 && shown.opacity < 1;
        });
    }
    void scaleTo(double factor) { view.camera = cameraAt(homeTile, factor * homeScale); }

    const std::shared_ptr<GatedInk> ink = std::make_shared<GatedInk>();
    const QColor land = basemapColors(BasemapTheme::light).land;
    const QColor water = basemapColors(BasemapTheme::light).water;
};

TEST_F(TilePyramidTest, ShowsTheGroundAtTheScaleOfTheView) {
    openWithoutServices();
    look();
    EXPECT_FALSE(store->isComplete());
    EXPECT_EQ(store->shownScale(), 0);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(store->shownScale(), homeScale);
    EXPECT_TRUE(hasNoHole());
    EXPECT_EQ(middleColor(), land);
    EXPECT_EQ(thanks(), std::vector{archiveThanks});
}

TEST_F(TilePyramidTest, WithoutAnArchiveTheGroundIsBareAndNobodyIsThanked) {
    archives.vector = "/absent";
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_TRUE(hasNoHole());
    EXPECT_TRUE(thanks().empty());
    EXPECT_TRUE(store->names().empty());
    EXPECT_FALSE(store->lacksImagery());
}

TEST_F(TilePyramidTest, ANewSetTakesTheOldOnesPlaceOnlyAsAWhole) {
    useInk();
    ink->open();
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    ink->close();
    scaleTo(2);
    look();
    EXPECT_EQ(store->shownScale(), homeScale);
    EXPECT_TRUE(hasNoHole());
    EXPECT_FALSE(store->isComplete());
    ink->open();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(store->shownScale(), 2 * homeScale);
    EXPECT_TRUE(hasNoHole());
}

TEST_F(TilePyramidTest, PicturesAreStretchedALittleWhileTheMapMovesAndExactAtRest) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    view.isResting = false;
    for (const double factor : {0.72, 1.8}) {
        scaleTo(factor);
        ASSERT_TRUE(lookUntilComplete());
        EXPECT_EQ(store->shownScale(), homeScale);
    }
    scaleTo(2.1);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(store->shownScale(), 2.1 * homeScale);
    scaleTo(2);
    view.isResting = true;
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(store->shownScale(), 2 * homeScale);
}

TEST_F(TilePyramidTest, ANewLookFadesIn) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    view.look = BasemapTheme::dark;
    view.fades = true;
    ASSERT_TRUE(lookUntil([&] { return isFading(); }));
    EXPECT_LT(store->shown().back().opacity, 0.1);
    EXPECT_EQ(store->shown().front().opacity, 1);
    EXPECT_FALSE(store->isComplete());
    now += milliseconds(110);
    look();
    EXPECT_NEAR(store->shown().back().opacity, 0.5, 0.1);
    now += milliseconds(220);
    look();
    EXPECT_FALSE(isFading());
    EXPECT_TRUE(store->isComplete());
    EXPECT_EQ(store->shown().front().opacity, 1);
    EXPECT_EQ(middleColor(), basemapColors(BasemapTheme::dark).land);
}

TEST_F(TilePyramidTest, WithReducedMotionANewLookIsThereAtOnce) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    view.look = BasemapTheme::dark;
    bool hasFaded = false;
    ASSERT_TRUE(lookUntil([&] {
        hasFaded = hasFaded || isFading();
        return store->isComplete();
    }));
    EXPECT_FALSE(hasFaded);
    EXPECT_EQ(middleColor(), basemapColors(BasemapTheme::dark).land);
}

TEST_F(TilePyramidTest, UnderAllLiesAPictureOfTheWorldSoThatThereIsNeverAHole) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    const Camera home = view.camera;
    int column = 100;
    EXPECT_TRUE(lookUntil([&] {
        // Where nothing can have been painted: each time elsewhere.
        view.camera = cameraAt({homeZoom, column = (column + 30) % 480, 250});
        look();
        const bool isBridged = !store->isComplete() && hasNoHole();
        view.camera = home;
        return isBridged;
    }));
    ASSERT_FALSE(store->shown().empty());
    for (const ShownTile& shown : store->shown()) {
        EXPECT_EQ(shown.tile->key.zoom, 2); // coarse
    }
}

TEST_F(TilePyramidTest, PicturesFarOutOfViewAreDropped) {
    openWithoutServices();
    std::vector<std::weak_ptr<PaintedTile>> seen;
    std::set<TileKey> keys;
    for (int column = 100; column < 130; ++column) {
        view.camera = cameraAt({homeZoom, column, 170});
        ASSERT_TRUE(lookUntilComplete());
        for (const ShownTile& shown : store->shown()) {
            if (keys.insert(shown.tile->key).second) {
                seen.emplace_back(shown.tile);
            }
        }
    }
    const auto isKept = [](const auto& tile) { return !tile.expired(); };
    EXPECT_GE(seen.size(), 60U);
    EXPECT_LE(std::ranges::count_if(seen, isKept), 36);
}

TEST_F(TilePyramidTest, WhatIsNoLongerLookedAtIsNotPainted) {
    constexpr Viewport large{2'500, 1'800};
    useInk();
    openWithoutServices();
    view.camera = cameraAt(homeTile, homeScale, large);
    const MapRect home = view.camera.visibleRect(200);
    look();
    ink->waitForOne();
    view.camera = cameraAt({homeZoom, 300, 170}, homeScale, large);
    look();
    ink->open();
    ASSERT_TRUE(lookUntilComplete());
    const auto begun = ink->begun();
    const auto isAtHome = [&home](const MapRect& bounds) { return bounds.intersects(home); };
    EXPECT_GE(begun.size(), 12U);
    EXPECT_LE(std::ranges::count_if(begun, isAtHome), 4); // one for each thread
}

TEST_F(TilePyramidTest, NewInkIsPaintedIntoNewPictures) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(store->shownInk(), nullptr);
    useInk();
    ink->open();
    look();
    EXPECT_TRUE(store->isComplete()); // it was not told that the ink is another one
    view.inkRevision = 7;
    look();
    EXPECT_FALSE(store->isComplete());
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(store->shownInk(), ink);
    EXPECT_FALSE(ink->begun().empty());
}

TEST_F(TilePyramidTest, TheTilesOfAServiceReplaceTheArchives) {
    server.setOtherAnswer(
        {.body = QByteArray::fromStdString(seaTile()), .manner = TileServer::Manner::held});
    openWithServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(middleColor(), land);
    EXPECT_EQ(thanks(), std::vector{archiveThanks});
    server.release();
    EXPECT_TRUE(
        lookUntil([&] { return middleColor() == water && thanks() == std::vector{mapThanks}; }));
}

TEST_F(TilePyramidTest, WhatArrivesWhileATileIsPaintedIsSeenToo) {
    server.setOtherAnswer({.body = QByteArray::fromStdString(seaTile())});
    useInk();
    openWithServices();
    std::set<ServiceTile> sent;
    QObject::connect(library.get(),
                     &TileLibrary::tileArrived,
                     store.get(),
                     [&](const ServiceTile& tile) { sent.insert(tile); });
    look();
    ink->waitForOne(); // it has read the archive's tile, or soon will have
    ASSERT_TRUE(comesTrue([&] { return sent.size() >= 4; }));
    ink->open();
    EXPECT_TRUE(lookUntil([&] {
        return store->isComplete() && thanks() == std::vector{mapThanks} &&
               std::ranges::all_of(store->shown(), [&](const ShownTile& shown) {
                   return shown.tile->image.pixelColor(5, 5) == water;
               });
    }));
}

TEST_F(TilePyramidTest, WhatIsLeftOfAnotherViewIsNeitherShownNorThanked) {
    server.setOtherAnswer({.body = photographOf(Qt::red), .manner = TileServer::Manner::held});
    openWithServices();
    view.look = BasemapTheme::satellite;
    tilt(60);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_TRUE(store->lacksImagery());
    const auto farther = std::ranges::find_if(
        store->shown(), [](const ShownTile& shown) { return shown.tile->key.zoom < homeZoom; });
    ASSERT_NE(farther, store->shown().end());
    const TileKey key = farther->tile->key;
    view.camera = cameraAt({homeZoom,
                            ((2 * key.column + 1) << (homeZoom - key.zoom)) / 2,
                            ((2 * key.row + 1) << (homeZoom - key.zoom)) / 2});
    server.release();
    ASSERT_TRUE(lookUntil([&] { return store->isComplete() && !store->lacksImagery(); }));
    EXPECT_EQ(thanks(), std::vector{photographThanks});
    EXPECT_EQ(middleColor(), QColor(Qt::red));
}

TEST_F(TilePyramidTest, AfterTexturesWereLostThePicturesArePaintedAnew) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    for (const ShownTile& shown : store->shown()) {
        shown.tile->image = {}; // as when it becomes a texture
    }
    look();
    EXPECT_TRUE(store->isComplete());
    store->forgetTextures();
    look();
    EXPECT_FALSE(store->isComplete());
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(middleColor(), land);
}

TEST_F(TilePyramidTest, AStoreMayGoWhilePicturesArePainted) {
    useInk();
    openWithoutServices();
    look();
    ink->waitForOne();
    const auto opening = std::async(std::launch::async, [this] { ink->open(); });
    store.reset();
    const auto begun = ink->begun().size();
    QCoreApplication::processEvents();
    EXPECT_EQ(ink->begun().size(), begun);
}

TEST_F(TilePyramidTest, OneStoreGoesAndAnotherStays) {
    useInk();
    openWithoutServices();
    TilePyramid other(*library);
    BasemapView otherView = view;
    otherView.ink = {};
    other.look(otherView, now);
    look();
    ink->waitForOne();
    ink->open();
    store.reset();
    EXPECT_TRUE(comesTrue([&] {
        other.look(otherView, now);
        return other.isComplete();
    }));
}

} // namespace
} // namespace vasker
