#include "map/basemap/TilePyramid.h"

#include "map/style/MapTheme.h"
#include "tests/map/basemap/GatedOverlay.h"
#include "tests/map/basemap/TilePyramidFixture.h"

#include <QPainter>

#include <algorithm>
#include <iterator>
#include <set>

namespace vasker {
namespace {

using std::chrono::milliseconds;

class TilePyramidTest : public TilePyramidFixture {
  protected:
    TilePyramidTest() { writeLand(); }
    ~TilePyramidTest() override {
        overlay->open(); // or the workers would wait for ever
        close();
    }

    /// No tile is finished before overlay->open().
    void useOverlay() {
        view.overlay = [this](double) { return overlay; };
    }
    void tilt(double pitch) {
        view.camera = Camera(view.camera.tilted(pitch).pose(), view.camera.viewport());
    }
    [[nodiscard]] bool isFading() const {
        return std::ranges::any_of(seen(), [](const SeenTile& tile) { return tile.opacity < 1; });
    }

    const std::shared_ptr<GatedOverlay> overlay = std::make_shared<GatedOverlay>();
};

TEST_F(TilePyramidTest, ShowsTheBasemapAtTheScaleOfTheView) {
    openWithoutServices();
    look();
    EXPECT_FALSE(frame.isComplete);
    EXPECT_EQ(frame.scale, 0);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(frame.scale, homeScale);
    EXPECT_TRUE(hasNoHole());
    EXPECT_EQ(middleColor(), land);
    EXPECT_EQ(credits(), std::vector{archiveCredit});
}

TEST_F(TilePyramidTest, WithoutAnArchiveTheBasemapIsBareAndNobodyIsCredited) {
    archives.vector = "/absent";
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_TRUE(hasNoHole());
    EXPECT_TRUE(credits().empty());
    EXPECT_TRUE(frame.labels.empty());
    EXPECT_FALSE(frame.lacksImagery);
}

TEST_F(TilePyramidTest, APendingGenerationBecomesCurrentOnlyAsAWhole) {
    useOverlay();
    overlay->open();
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    overlay->close();
    scaleTo(2);
    look();
    EXPECT_EQ(frame.scale, homeScale);
    EXPECT_TRUE(hasNoHole());
    EXPECT_FALSE(frame.isComplete);
    overlay->open();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(frame.scale, 2 * homeScale);
    EXPECT_TRUE(hasNoHole());
}

TEST_F(TilePyramidTest, TilesAreStretchedALittleWhileTheMapMovesAndExactAtRest) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    view.isResting = false;
    for (const double factor : {0.72, 1.8}) {
        scaleTo(factor);
        ASSERT_TRUE(lookUntilComplete());
        EXPECT_EQ(frame.scale, homeScale);
    }
    scaleTo(2.1);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(frame.scale, 2.1 * homeScale);
    scaleTo(2);
    view.isResting = true;
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(frame.scale, 2 * homeScale);
}

TEST_F(TilePyramidTest, ANewThemeFadesIn) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    view.theme = BasemapTheme::dark;
    view.fades = true;
    ASSERT_TRUE(lookUntil([&] { return isFading(); }));
    EXPECT_LT(seen().back().opacity, 0.1);
    EXPECT_EQ(seen().front().opacity, 1);
    EXPECT_FALSE(frame.isComplete);
    now += milliseconds(110);
    look();
    EXPECT_NEAR(seen().back().opacity, 0.5, 0.1);
    now += milliseconds(220);
    look();
    EXPECT_FALSE(isFading());
    EXPECT_TRUE(frame.isComplete);
    EXPECT_EQ(seen().front().opacity, 1);
    EXPECT_EQ(middleColor(), mapTheme(BasemapTheme::dark).land);
}

TEST_F(TilePyramidTest, WithReducedMotionANewThemeIsThereAtOnce) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    view.theme = BasemapTheme::dark;
    bool hasFaded = false;
    ASSERT_TRUE(lookUntil([&] {
        hasFaded = hasFaded || isFading();
        return frame.isComplete;
    }));
    EXPECT_FALSE(hasFaded);
    EXPECT_EQ(middleColor(), mapTheme(BasemapTheme::dark).land);
}

TEST_F(TilePyramidTest, BelowAllLiesACoarseWorldSoThatThereIsNeverAHole) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    const Camera home = view.camera;
    int column = 100;
    EXPECT_TRUE(lookUntil([&] {
        // Where nothing can have been painted: each time elsewhere.
        view.camera = cameraAt({homeZoom, column = (column + 30) % 480, 250});
        look();
        const bool isBridged = !frame.isComplete && hasNoHole();
        view.camera = home;
        return isBridged;
    }));
    ASSERT_FALSE(seen().empty());
    for (const SeenTile& tile : seen()) {
        EXPECT_EQ(tile.image->width(), tilePixels / 2); // coarse
    }
}

TEST_F(TilePyramidTest, TilesFarOutOfViewAreDropped) {
    openWithoutServices();
    TileNumber last = 0;
    for (int column = 100; column < 130; ++column) {
        view.camera = cameraAt({homeZoom, column, 170});
        ASSERT_TRUE(lookUntilComplete());
        last = std::max(last, frame.tiles.kept.back());
        EXPECT_LE(textures.size(), 12U); // in view and near it
    }
    EXPECT_GE(last, 60U); // so many were painted
}

TEST_F(TilePyramidTest, WhatIsNoLongerInViewIsNotPainted) {
    constexpr Viewport large{2'500, 1'800};
    useOverlay();
    openWithoutServices();
    view.camera = cameraAt(homeTile, homeScale, large);
    const MapRect home = view.camera.visibleRect(200);
    look();
    overlay->waitForOne();
    view.camera = cameraAt({homeZoom, 300, 170}, homeScale, large);
    look();
    overlay->open();
    ASSERT_TRUE(lookUntilComplete());
    const auto begun = overlay->begun();
    const auto isAtHome = [&home](const MapRect& bounds) { return bounds.intersects(home); };
    EXPECT_GE(begun.size(), 12U);
    EXPECT_LE(std::ranges::count_if(begun, isAtHome), 4); // one for each thread
}

TEST_F(TilePyramidTest, ANewOverlayIsPaintedIntoNewTiles) {
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(frame.overlay, nullptr);
    useOverlay();
    overlay->open();
    look();
    EXPECT_TRUE(frame.isComplete); // it was not told that the overlay is another one
    view.overlayRevision = 7;
    look();
    EXPECT_FALSE(frame.isComplete);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(frame.overlay, overlay);
    EXPECT_FALSE(overlay->begun().empty());
}

TEST_F(TilePyramidTest, TheTilesOfAServiceReplaceTheArchives) {
    server.setOtherAnswer(
        {.body = QByteArray::fromStdString(seaTile()), .manner = TileServer::Manner::held});
    openWithServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(middleColor(), land);
    EXPECT_EQ(credits(), std::vector{archiveCredit});
    server.release();
    EXPECT_TRUE(
        lookUntil([&] { return middleColor() == water && credits() == std::vector{mapCredit}; }));
}

TEST_F(TilePyramidTest, WhatArrivesWhileATileIsPaintedIsSeenToo) {
    server.setOtherAnswer({.body = QByteArray::fromStdString(seaTile())});
    useOverlay();
    openWithServices();
    std::set<ServiceTile> sent;
    QObject::connect(library.get(),
                     &TileLibrary::tileArrived,
                     pyramid.get(),
                     [&](const ServiceTile& tile) { sent.insert(tile); });
    look();
    overlay->waitForOne(); // it has read the archive's tile, or soon will have
    ASSERT_TRUE(comesTrue([&] { return sent.size() >= 4; }));
    overlay->open();
    EXPECT_TRUE(lookUntil([&] {
        return frame.isComplete && credits() == std::vector{mapCredit} &&
               std::ranges::all_of(seen(), [&](const SeenTile& tile) {
                   return tile.image->pixelColor(5, 5) == water;
               });
    }));
}

TEST_F(TilePyramidTest, WhatIsLeftOfAnotherViewIsNeitherShownNorCredited) {
    server.setOtherAnswer({.body = imageryImage(Qt::red), .manner = TileServer::Manner::held});
    openWithServices();
    view.theme = BasemapTheme::satellite;
    tilt(60);
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_TRUE(frame.lacksImagery);
    const auto cover = tileCover(view.camera, homeZoom, 0);
    const auto farther =
        std::ranges::find_if(cover, [](const CoverTile& tile) { return tile.key.zoom < homeZoom; });
    ASSERT_NE(farther, cover.end());
    const TileKey key = farther->key;
    view.camera = cameraAt({homeZoom,
                            ((2 * key.column + 1) << (homeZoom - key.zoom)) / 2,
                            ((2 * key.row + 1) << (homeZoom - key.zoom)) / 2});
    server.release();
    ASSERT_TRUE(lookUntil([&] { return frame.isComplete && !frame.lacksImagery; }));
    EXPECT_EQ(credits(), std::vector{imageryCredit});
    EXPECT_EQ(middleColor(), QColor(Qt::red));
}

TEST_F(TilePyramidTest, AnOverlayIsPaintedInDevicePixels) {
    struct Spot : TileOverlay {
        void paint(QImage& image, const MapRect& bounds, double scale) const override {
            if (bounds.contains(homeTile.bounds().center())) {
                EXPECT_NEAR(bounds.width * scale, 2.0 * tilePixels, 1);
                QPainter(&image).fillRect(1'000, 1'000, 10, 10, Qt::green);
            }
        }
    };
    view.devicePixelsPerPixel = 2;
    view.overlay = [](double) { return std::make_shared<Spot>(); };
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    const MapRect home = homeTile.bounds();
    const ScreenPoint corner = view.camera.worldToScreen({home.x, home.y});
    EXPECT_EQ(colorAt({corner.x + 502, corner.y + 502}), QColor(Qt::green));
    EXPECT_EQ(colorAt({corner.x + 490, corner.y + 490}), land);
}

TEST_F(TilePyramidTest, ANewOverlayReplacesTheOldOneWithoutPaintingTheBasemapAnew) {
    struct Plain : TileOverlay {
        explicit Plain(const QColor& painted) : color(painted) {}
        void paint(QImage& image, const MapRect&, double) const override {
            QPainter(&image).fillRect(0, 0, 2'000, 1, color);
        }
        QColor color;
    };
    QColor color(Qt::red);
    view.overlay = [&color](double) { return std::make_shared<Plain>(color); };
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(middleColor(), land);
    // Were the basemap painted anew, this would be seen.
    library->provider()->put({TileContent::vector, {0, 0, 0}},
                             QByteArray::fromStdString(seaTile()));
    color = Qt::blue;
    ++view.overlayRevision;
    ASSERT_TRUE(lookUntilComplete());
    EXPECT_EQ(middleColor(), land);
    for (const SeenTile& tile : seen()) {
        EXPECT_EQ(tile.image->pixelColor(5, 0), QColor(Qt::blue));
    }
}

TEST_F(TilePyramidTest, TilesThatANewOverlayPaintsAlikeAreKept) {
    struct Western : TileOverlay {
        void paint(QImage& /*image*/, const MapRect& /*bounds*/, double) const override {}
        [[nodiscard]] bool
        paintsLike(const TileOverlay& /*other*/, const MapRect& bounds, double) const override {
            return bounds.x >= homeTile.bounds().x;
        }
    };
    view.overlay = [](double) { return std::make_shared<Western>(); };
    openWithoutServices();
    ASSERT_TRUE(lookUntilComplete());
    const auto numbers = [this] {
        std::set<TileNumber> all;
        for (const TileQuad& quad : frame.tiles.quads) {
            all.insert(quad.tile);
        }
        return all;
    };
    const std::set<TileNumber> before = numbers();
    ++view.overlayRevision;
    ASSERT_TRUE(lookUntilComplete());
    const std::set<TileNumber> after = numbers();
    std::vector<TileNumber> kept;
    std::ranges::set_intersection(before, after, std::back_inserter(kept));
    EXPECT_GE(kept.size(), 1U);
    EXPECT_LT(kept.size(), before.size());
    EXPECT_EQ(after.size(), before.size());
}

TEST_F(TilePyramidTest, APyramidMayGoWhileTilesArePainted) {
    useOverlay();
    openWithoutServices();
    look();
    overlay->waitForOne();
    pyramid.reset(); // does not wait
    overlay->open();
    QCoreApplication::processEvents();
}

TEST_F(TilePyramidTest, OnePyramidGoesAndAnotherStays) {
    useOverlay();
    openWithoutServices();
    TilePyramid other(*library);
    BasemapView otherView = view;
    otherView.overlay = {};
    static_cast<void>(other.compose(otherView, now));
    look();
    overlay->waitForOne();
    overlay->open();
    pyramid.reset();
    EXPECT_TRUE(comesTrue([&] { return other.compose(otherView, now).isComplete; }));
}

} // namespace
} // namespace vasker
