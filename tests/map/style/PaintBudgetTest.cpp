#include "map/style/PaintBudget.h"

#include "map/geometry/TileCover.h"
#include "map/style/MapTheme.h"
#include "map/style/TilePainter.h"
#include "map/style/VectorTilePainter.h"
#include "map/tiles/TileArchive.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace vasker {
namespace {

/// So many lines from the top to the bottom of a tile, or from side to side.
std::vector<QPolygonF> lines(int count, bool areUpright = true) {
    std::vector<QPolygonF> all;
    for (int i = 0; i < count; ++i) {
        all.push_back(areUpright ? QPolygonF{QPointF(i, 0), QPointF(i, 512)}
                                 : QPolygonF{QPointF(0, i), QPointF(512, i)});
    }
    return all;
}

TEST(PaintBudget, AnOutlineCostsItsLengthAndSomething) {
    EXPECT_GT(fillCost(lines(1)), 512);
    EXPECT_LT(fillCost(lines(1)), 2 * 512);
}

TEST(PaintBudget, ALineWithAnOutlineCostsBothSidesAndOneWithoutLessThanItsLength) {
    EXPECT_LT(strokeCost(lines(1), 1), 512);
    EXPECT_GT(strokeCost(lines(1), 2), 2 * 512);
    EXPECT_GT(strokeCost(lines(1), 20), strokeCost(lines(1), 2)) << "it has round ends";
}

TEST(PaintBudget, WhatCrossesTheSameRowsCostsSeveralTimesWhatItCostsOneByOne) {
    EXPECT_GT(fillCost(lines(100)), 5 * 100 * fillCost(lines(1)));
    EXPECT_LT(fillCost(lines(1'000)), 12 * 1'000 * fillCost(lines(1)));
}

TEST(PaintBudget, AnOutlineInOneRowCostsMoreThanOneThroughMany) {
    EXPECT_GT(fillCost(lines(1, false)), 5 * fillCost(lines(1)));
}

TEST(PaintBudget, ManyShortStepsCostLittleMoreThanALongOne) {
    QPolygonF steps;
    for (int i = 0; i <= 128; ++i) {
        steps.append(QPointF(0, 4 * i));
    }
    EXPECT_LT(fillCost(std::vector{steps}), 3 * fillCost(lines(1)));
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

TEST(PaintBudget, NoTileOfTheBuiltInBasemapTakesAThirdOfTheBudget) {
    const auto archive = TileArchive::open(VASKER_RESOURCES "/basemap.mbtiles");
    ASSERT_NE(archive, nullptr);
    const Camera canada(canadaOverview, {1280, 800});
    int painted = 0;
    for (int zoom = 0; zoom <= 6; ++zoom) {
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
            PaintBudget budget(outlineBudget * 512 / 3);
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

VectorFeature
onePart(VectorFeature::Geometry geometry, const char* kind, std::vector<TilePoint> part) {
    VectorFeature feature;
    feature.geometry = geometry;
    feature.kind = kind;
    feature.parts = {std::move(part)};
    return feature;
}

struct PaintedTile {
    TileData data;
    TileRequest request;

    PaintedTile(TileKey key, std::vector<VectorLayer> layers) {
        data.vector = std::make_shared<VectorTile>(VectorTile{std::move(layers)});
        data.vectorKey = key;
        request.key = key;
        request.devicePixelsPerMapPoint = 512 / key.side();
    }
    [[nodiscard]] bool isRefused() const { return paintTile(data, request).isNull(); }
    /// What painting it takes of a budget.
    [[nodiscard]] double cost() const {
        constexpr double plenty = 1e12;
        QImage image(512, 512, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        PaintBudget budget(plenty);
        paintVectorTile(painter, data, request, request.theme, styleLayers(), budget);
        return plenty - budget.left();
    }
};

/// A sea whose shore crosses the whole tile so often.
PaintedTile zigzagSea(int crossings) {
    std::vector<TilePoint> shore;
    for (int i = 0; i <= crossings; ++i) {
        shore.push_back(
            {static_cast<float>(i) / static_cast<float>(crossings), i % 2 == 0 ? 0.0F : 1.0F});
    }
    return {{6, 12, 20}, {{"ocean", {onePart(VectorFeature::Geometry::polygon, "", shore)}}}};
}

TEST(PaintBudget, ATileIsPaintedUpToItsBudgetAndNotBeyond) {
    int painted = 1;
    int refused = 3'000;
    while (refused - painted > 1) {
        const int middle = (painted + refused) / 2;
        (zigzagSea(middle).isRefused() ? refused : painted) = middle;
    }
    EXPECT_GT(painted, 100);
    EXPECT_LE(zigzagSea(painted).cost(), outlineBudget * 512);
    EXPECT_GT(zigzagSea(refused).cost(), outlineBudget * 512);
}

/// A sea whose shore runs up and down so often, west of the tile but for one corner beyond it.
PaintedTile seaBeside(int points) {
    std::vector<TilePoint> shore{{-20, -20}, {20, -20}};
    for (int i = 0; i < points; ++i) {
        shore.push_back({i % 2 == 0 ? -20.0F : -10.0F, static_cast<float>(i % 3)});
    }
    return {{6, 12, 20}, {{"ocean", {onePart(VectorFeature::Geometry::polygon, "", shore)}}}};
}

TEST(PaintBudget, WhatRunsBesideATileIsCountedToo) {
    EXPECT_GT(seaBeside(100'000).cost(), 20'000);
    EXPECT_FALSE(seaBeside(100'000).isRefused());
    EXPECT_TRUE(seaBeside(4'000'000).isRefused());
}

TEST(PaintBudget, ALineThatIsDrawnInPiecesHasNoGap) {
    constexpr int crossings = 20;
    std::vector<TilePoint> way;
    for (int i = 0; i <= crossings; ++i) {
        way.push_back({i % 2 == 0 ? 0.05F : 0.95F, static_cast<float>(i + 1) / (crossings + 2)});
    }
    const PaintedTile painted(
        {10, 200, 300}, {{"streets", {onePart(VectorFeature::Geometry::lines, "motorway", way)}}});
    const QImage image = paintTile(painted.data, painted.request);
    ASSERT_FALSE(image.isNull());
    const QRgb land = mapTheme(BasemapTheme::light).land.rgb();
    for (std::size_t i = 1; i < way.size(); ++i) {
        for (const float part : {0.1F, 0.5F, 0.9F}) {
            const float x = way[i - 1].x + part * (way[i].x - way[i - 1].x);
            const float y = way[i - 1].y + part * (way[i].y - way[i - 1].y);
            EXPECT_NE(image.pixel(static_cast<int>(512 * x), static_cast<int>(512 * y)), land)
                << i << ' ' << part;
        }
    }
}

TEST(PaintBudget, ALineThatIsDrawnInPiecesLooksTheSameAllAlong) {
    constexpr int rows = 30;
    const auto yOf = [](int row) { return 16 * (row + 1); };
    std::vector<TilePoint> way;
    for (int row = 0; row < rows; ++row) {
        const float y = (static_cast<float>(yOf(row)) + 0.25F) / 512;
        const float from = row % 2 == 0 ? 0.05F : 0.95F;
        way.push_back({from, y});
        way.push_back({1 - from, y});
    }
    const PaintedTile painted(
        {10, 200, 300}, {{"streets", {onePart(VectorFeature::Geometry::lines, "motorway", way)}}});
    const QImage image = paintTile(painted.data, painted.request);
    ASSERT_FALSE(image.isNull());
    for (int row = 1; row < rows; ++row) {
        for (int dy = -8; dy < 8; ++dy) {
            EXPECT_EQ(image.pixelColor(256, yOf(row) + dy), image.pixelColor(256, yOf(0) + dy))
                << row << ' ' << dy;
        }
    }
}

/// Houses, streets and footways, each somewhere.
PaintedTile denseCity(int houses, int streets, int paths) {
    const auto somewhere = [](int i) {
        return TilePoint{static_cast<float>(i * 379 % 1'000) / 1'000,
                         static_cast<float>(i * 617 % 1'009) / 1'009};
    };
    const auto way = [&](int i, const char* kind) {
        std::vector<TilePoint> points;
        for (int step = 0; step < 6; ++step) {
            const auto along = static_cast<float>(12 * step) / 512;
            const auto across = static_cast<float>(step * step) / 512;
            const auto [x, y] = somewhere(i);
            points.push_back(i % 2 == 0 ? TilePoint{x + along, y + across}
                                        : TilePoint{x + across, y + along});
        }
        return onePart(VectorFeature::Geometry::lines, kind, points);
    };
    VectorLayer buildings{"buildings", {}};
    VectorLayer roads{"streets", {}};
    for (int i = 0; i < houses; ++i) {
        const auto [x, y] = somewhere(i);
        const float w = static_cast<float>(4 + i % 8) / 512;
        const float h = static_cast<float>(4 + i % 7) / 512;
        buildings.features.push_back(
            onePart(VectorFeature::Geometry::polygon,
                    "",
                    {{x, y}, {x + w, y + 0.2F * h}, {x + w, y + h}, {x, y + h}, {x, y}}));
    }
    for (int i = 0; i < streets; ++i) {
        roads.features.push_back(way(i, i % 10 == 0 ? "secondary" : "residential"));
    }
    for (int i = 0; i < paths; ++i) {
        roads.features.push_back(way(i, "footway"));
    }
    return {{14, 4'500, 6'000}, {buildings, roads}};
}

TEST(PaintBudget, TheTileOfADenseCityTakesLessThanHalfOfTheBudget) {
    const PaintedTile downtown = denseCity(2'000, 400, 300);
    EXPECT_LT(downtown.cost(), outlineBudget * 512 / 2);
    EXPECT_FALSE(downtown.isRefused());
}

} // namespace
} // namespace vasker
