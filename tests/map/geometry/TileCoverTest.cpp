#include "map/geometry/TileCover.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace vasker {
namespace {

constexpr Viewport view{960, 712};

/// How many tiles of the cover hold `point`.
int tilesAt(const std::vector<CoverTile>& cover, MapPoint point) {
    return static_cast<int>(
        std::count_if(cover.begin(), cover.end(), [point](const CoverTile& tile) {
            const MapRect bounds = tile.key.bounds();
            return point.x >= bounds.x + tile.offset &&
                   point.x < bounds.x + tile.offset + bounds.width && point.y >= bounds.y &&
                   point.y < bounds.y + bounds.height;
        }));
}

/// Every fourth pixel of the view must lie on exactly one tile, but beyond the poles' limit.
void expectCovered(const Camera& camera, const std::vector<CoverTile>& cover) {
    for (double y = 0.5; y < camera.viewport().height; y += 41) {
        for (double x = 0.5; x < camera.viewport().width; x += 41) {
            const MapPoint below = camera.screenToWorld({x, y});
            const bool isInWorld = below.y >= 0 && below.y < worldSize;
            ASSERT_EQ(tilesAt(cover, below), isInWorld ? 1 : 0) << x << ", " << y;
        }
    }
}

TEST(TileCover, CoversTheViewOnceWhateverTheBearingAndThePitch) {
    for (const double bearing : {0.0, 45.0, 200.0}) {
        for (const double pitch : {0.0, 30.0, 60.0}) {
            const Camera overview(canadaOverview, view);
            const CameraPose pose{overview.center(), overview.scale() * 7.7, bearing, pitch};
            const Camera camera(pose, view);
            expectCovered(camera, tileCover(camera, tileZoom(camera.scale()), 0));
        }
    }
}

TEST(TileCover, CrossesTheDateLine) {
    const Camera camera(CameraPose{coordinateToMapPoint({60, 179.9}), 40 * 512 / worldSize}, view);
    const auto cover = tileCover(camera, tileZoom(camera.scale()), 0);
    expectCovered(camera, cover);
    EXPECT_TRUE(std::any_of(
        cover.begin(), cover.end(), [](const CoverTile& tile) { return tile.offset > 0; }));
    for (const CoverTile& tile : cover) {
        EXPECT_GE(tile.key.column, 0);
        EXPECT_LT(tile.key.column, 1 << tile.key.zoom);
    }
}

TEST(TileCover, RepeatsTheWorldInAWideWindow) {
    const Camera camera(CameraPose{{worldSize / 2, worldSize / 2}, 0}, {2400, 400});
    const auto cover = tileCover(camera, 0, 0);
    expectCovered(camera, cover);
    std::set<double> shifts;
    for (const CoverTile& tile : cover) {
        shifts.insert(tile.offset);
    }
    EXPECT_GE(shifts.size(), 6U);
}

TEST(TileCover, TakesCoarserTilesFarAway) {
    const CameraPose pose{coordinateToMapPoint({54, -112}), 100 * 512 / worldSize, 0, 60};
    const Camera camera(pose, view);
    const int zoom = tileZoom(camera.scale());
    const auto cover = tileCover(camera, zoom, 0);
    EXPECT_LE(cover.size(), 40U);
    const auto [coarsest, finest] =
        std::minmax_element(cover.begin(), cover.end(), [](const auto& a, const auto& b) {
            return a.key.zoom < b.key.zoom;
        });
    EXPECT_EQ(finest->key.zoom, zoom);
    EXPECT_LT(coarsest->key.zoom, zoom);
}

TEST(TileCover, BeginsWithTheTileUnderTheMiddleOfTheView) {
    const Camera camera(CameraPose{coordinateToMapPoint({54, -112}), 1000 * 512 / worldSize}, view);
    const auto cover = tileCover(camera, tileZoom(camera.scale()), 100);
    ASSERT_FALSE(cover.empty());
    EXPECT_TRUE(cover.front().key.bounds().contains(camera.center()));
    double last = 0;
    for (const CoverTile& tile : cover) { // and goes outwards
        const MapPoint middle = tile.key.bounds().center();
        const double distance =
            std::hypot(middle.x + tile.offset - camera.center().x, middle.y - camera.center().y);
        EXPECT_GE(distance, last);
        last = distance;
    }
}

TEST(TileCover, AMarginAddsTilesAround) {
    const Camera camera(canadaOverview, view);
    const int zoom = tileZoom(camera.scale());
    EXPECT_GT(tileCover(camera, zoom, 600).size(), tileCover(camera, zoom, 0).size());
}

TEST(TileZoom, IsTheOneWhoseTilesAreNearestToTheirOwnSize) {
    EXPECT_EQ(tileZoom(512 / worldSize), 0);
    EXPECT_EQ(tileZoom(8 * 512 / worldSize * 1.41), 3);
    EXPECT_EQ(tileZoom(8 * 512 / worldSize * 1.42), 4);
    EXPECT_EQ(tileZoom(1e-12), 0);
    EXPECT_EQ(tileZoom(1e12), maximumTileZoom);
}

} // namespace
} // namespace vasker
