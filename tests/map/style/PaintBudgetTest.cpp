#include "map/style/PaintBudget.h"

#include "map/geometry/TileCover.h"
#include "map/style/TilePainter.h"
#include "map/style/VectorTilePainter.h"
#include "map/tiles/TileArchive.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <vector>

namespace vasker {
namespace {

/// So many lines from the top to the bottom of a tile.
std::vector<QPolygonF> lines(int count) {
    std::vector<QPolygonF> all;
    for (int i = 0; i < count; ++i) {
        all.push_back({QPointF(i, 0), QPointF(i, 512)});
    }
    return all;
}

TEST(PaintBudget, ALineCostsItsLengthAndSomething) {
    const double cost = strokeCost(lines(1), 1);
    EXPECT_GT(cost, 512);
    EXPECT_LT(cost, 2 * 512);
}

TEST(PaintBudget, AWiderLineCostsMore) {
    EXPECT_GT(strokeCost(lines(1), 2), 2 * strokeCost(lines(1), 1));
    EXPECT_GT(strokeCost(lines(1), 20), 2 * strokeCost(lines(1), 2));
}

TEST(PaintBudget, WhatCrossesTheSameRowsCostsTheirSquare) {
    EXPECT_GT(fillCost(lines(1'000)), 50 * fillCost(lines(100)));
    // Drawn one by one they cost no more than their sum.
    EXPECT_GT(fillCost(lines(1'000)), 10 * 1'000 * fillCost(lines(1)));
}

TEST(PaintBudget, NothingAndAPointCostNextToNothing) {
    EXPECT_EQ(fillCost({}), 0);
    EXPECT_LT(fillCost(std::vector{QPolygonF({QPointF(3, 3)})}), 100);
    EXPECT_LT(strokeCost(std::vector{QPolygonF()}, 5), 100);
}

TEST(PaintBudget, WhatIsSpentStaysSpent) {
    PaintBudget budget(100);
    EXPECT_TRUE(budget.spend(60));
    EXPECT_FALSE(budget.isSpent());
    EXPECT_FALSE(budget.spend(60));
    EXPECT_TRUE(budget.isSpent());
    EXPECT_FALSE(budget.spend(0));
}

TEST(PaintBudget, NoTileOfTheBuiltInBasemapTakesAQuarterOfTheBudget) {
    const auto archive = TileArchive::open(VASKER_RESOURCES "/basemap.mbtiles");
    ASSERT_NE(archive, nullptr);
    const Camera canada(canadaOverview, {1280, 800});
    int painted = 0;
    for (int zoom = 1; zoom <= 6; ++zoom) {
        for (const CoverTile& each : tileCover(canada, zoom, 0)) {
            const auto stored = archive->nearestTile(each.key);
            ASSERT_TRUE(stored);
            TileData data;
            data.vector = std::make_shared<const VectorTile>(
                decodeVectorTile(inflatedTile(stored->bytes).value()).value());
            data.vectorKey = stored->key;
            QImage image(512, 512, QImage::Format_RGB32);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            PaintBudget budget(outlineBudget * 512 / 4);
            TileRequest request;
            request.key = each.key;
            request.devicePixelsPerMapPoint = 512 / each.key.side();
            paintVectorTile(painter, data, request, BasemapTheme::light, styleLayers(), budget);
            EXPECT_FALSE(budget.isSpent()) << zoom << ' ' << each.key.column << ' ' << each.key.row;
            ++painted;
        }
    }
    EXPECT_GT(painted, 50);
}

} // namespace
} // namespace vasker
