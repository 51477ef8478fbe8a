#include "map/basemap/TileGeneration.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

RasterTile shownTile(TileKey key) {
    RasterTile tile;
    tile.key = key;
    tile.basemap = QImage(8, 8, QImage::Format_RGB32);
    tile.isHandedOver = true;
    return tile;
}

TEST(TileGeneration, OnlyTilesNearTheViewKeepWhatANewOverlayIsPaintedOn) {
    constexpr TileKey near{3, 1, 1};
    constexpr TileKey far{3, 5, 5};
    constexpr TileKey farAndNew{3, 6, 5};
    TileGeneration generation(1, 3, BasemapView{});
    generation.tiles[near] = shownTile(near);
    generation.tiles[far] = shownTile(far);
    generation.tiles[farAndNew] = shownTile(farAndNew);
    generation.tiles[farAndNew].isHandedOver = false;
    generation.dropBasemapsOutside({CoverTile{near, 0}});
    EXPECT_FALSE(generation.tiles[near].basemap.isNull());
    EXPECT_TRUE(generation.tiles[far].basemap.isNull());
    EXPECT_FALSE(generation.tiles[farAndNew].basemap.isNull());

    TileGeneration next(1, 3, BasemapView{});
    next.takeOver(generation);
    EXPECT_TRUE(next.bare.contains(near));
    EXPECT_FALSE(next.bare.contains(far));
}

} // namespace
} // namespace vasker
