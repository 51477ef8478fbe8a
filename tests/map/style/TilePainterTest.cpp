#include "map/style/TilePainter.h"

#include "map/style/MapTheme.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vasker {
namespace {

using Points = std::vector<TilePoint>;

constexpr TileKey tile{6, 12, 20};
constexpr TileKey itsFirstChild{7, 24, 40};
constexpr TileKey itsLastChild{7, 25, 41};

VectorFeature area(const char* kind, std::vector<Points> rings) {
    VectorFeature feature;
    feature.geometry = VectorFeature::Geometry::polygon;
    feature.kind = kind;
    feature.parts = std::move(rings);
    return feature;
}

VectorFeature line(const char* kind, Points points) {
    VectorFeature feature;
    feature.geometry = VectorFeature::Geometry::lines;
    feature.kind = kind;
    feature.parts = {std::move(points)};
    return feature;
}

VectorFeature border(int adminLevel, Points points) {
    VectorFeature feature = line("", std::move(points));
    feature.adminLevel = adminLevel;
    return feature;
}

Points square(float from, float to) {
    return {{from, from}, {to, from}, {to, to}, {from, to}, {from, from}};
}

TileData dataOf(std::vector<VectorLayer> layers) {
    TileData data;
    data.vector = std::make_shared<VectorTile>(VectorTile{std::move(layers)});
    data.vectorKey = tile;
    return data;
}

TileRequest
requestFor(TileKey key, BasemapTheme theme = BasemapTheme::light, double devicePixels = 512) {
    TileRequest request;
    request.key = key;
    request.devicePixelsPerMapPoint = devicePixels / key.side();
    request.theme = theme;
    return request;
}

QColor at(const QImage& picture, double x, double y) {
    return picture.pixelColor(static_cast<int>(x * picture.width()),
                              static_cast<int>(y * picture.height()));
}

const MapTheme& light() {
    return mapTheme(BasemapTheme::light);
}

/// The darkness of a row or column of pixels from the paper, as text: '#' where a line covers it.
std::string profile(const QImage& picture, bool along, int position) {
    std::string text;
    for (int i = 0; i < picture.width(); ++i) {
        const QColor color =
            along ? picture.pixelColor(i, position) : picture.pixelColor(position, i);
        text += color.lightness() < light().land.lightness() - 20 ? '#' : '.';
    }
    return text;
}

TEST(TilePainter, TheSeaLiesUponLand) {
    const QImage picture =
        paintTile(dataOf({{"ocean", {area("", {square(0.25F, 0.75F)})}}}), requestFor(tile));
    EXPECT_EQ(at(picture, 0.5, 0.5), light().water);
    EXPECT_EQ(at(picture, 0.1, 0.1), light().land);
}

TEST(TilePainter, AHoleInALakeIsAnIsland) {
    const QImage picture = paintTile(
        dataOf({{"water_polygons", {area("lake", {square(0.2F, 0.8F), square(0.4F, 0.6F)})}}}),
        requestFor(tile));
    EXPECT_EQ(at(picture, 0.3, 0.3), light().water);
    EXPECT_EQ(at(picture, 0.5, 0.5), light().land);
}

TEST(TilePainter, TheRasterTileIsOpaqueAndHasTheSizeAskedFor) {
    const TileRequest request = requestFor(tile, BasemapTheme::light, 724.08);
    const QImage picture = paintTile(TileData(), request);
    EXPECT_EQ(picture.size(), QSize(request.pixels().width, request.pixels().height));
    EXPECT_GE(picture.width(), 725);
    EXPECT_EQ(picture.format(), QImage::Format_RGB32);
}

TEST(TilePainter, AChildShowsItsQuarterOfTheAncestorsData) {
    const TileData data = dataOf({{"ocean", {area("", {square(-0.1F, 0.5F)})}}});
    const QImage first = paintTile(data, requestFor(itsFirstChild));
    const QImage last = paintTile(data, requestFor(itsLastChild));
    EXPECT_EQ(at(first, 0.01, 0.01), light().water);
    EXPECT_EQ(at(first, 0.95, 0.95), light().water);
    EXPECT_EQ(at(last, 0.5, 0.5), light().land);
}

TEST(TilePainter, AFarDescendantIsStillDrawnFromItsAncestor) {
    const TileData data = dataOf(
        {{"ocean", {area("", {{{-0.1F, -0.1F}, {1.1F, -0.1F}, {-0.1F, 1.1F}, {-0.1F, -0.1F}}})}}});
    // The tile at zoom 22 whose north-west corner the coast runs through, at 1/2, 1/2.
    const std::int32_t half = 1 << 15;
    const QImage picture =
        paintTile(data, requestFor({22, (12 << 16) + half - 1, (20 << 16) + half}));
    EXPECT_EQ(at(picture, 0.1, 0.1), light().water);
    EXPECT_EQ(at(picture, 0.9, 0.9), light().land);
}

TEST(TilePainter, WhereTheDataWereCutThereIsNoCoast) {
    // Data that end at the tile's edge itself, without any margin.
    const QImage picture =
        paintTile(dataOf({{"ocean", {area("", {square(0, 1)})}}}), requestFor(tile));
    for (int i = 2; i < 510; ++i) {
        ASSERT_EQ(picture.pixelColor(0, i), light().water) << i;
        ASSERT_EQ(picture.pixelColor(511, i), light().water) << i;
        ASSERT_EQ(picture.pixelColor(i, 0), light().water) << i;
    }
}

TEST(TilePainter, ARegionsBorderGoesOnInTheNeighbourWhereItLeftOff) {
    const auto bordered = [](float from, float to) {
        TileData data = dataOf({{"boundaries", {border(4, {{from, 0.5F}, {to, 0.5F}})}}});
        return data;
    };
    // One line, cut with the margins of two neighbours.
    TileRequest west = requestFor(tile);
    TileRequest east = requestFor({6, 13, 20});
    TileData eastern = bordered(-0.02F, 0.73F);
    eastern.vectorKey = east.key;
    const std::string text = profile(paintTile(bordered(0.13F, 1.02F), west), true, 255) +
                             profile(paintTile(eastern, east), true, 255);
    // No dash around the seam is longer or shorter than the pattern's.
    const std::string around = text.substr(460, 104);
    const std::size_t dash = around.rfind('.', 52);
    const std::size_t end = around.find('.', 52);
    EXPECT_GE(end - dash - 1, 4U) << around;
    EXPECT_LE(end - dash - 1, 6U) << around;
    EXPECT_EQ(around.find("########"), std::string::npos) << around;
    EXPECT_EQ(around.find("......"), std::string::npos) << around;
}

TEST(TilePainter, ALineIsAsWideOnTheScreenWhateverTheDensity) {
    TileData data = dataOf({{"boundaries", {border(2, {{0.5F, -0.1F}, {0.5F, 1.1F}})}}});
    const auto darknessOf = [&](int devicePixels, double density) {
        TileRequest request = requestFor(tile, BasemapTheme::light, devicePixels);
        request.devicePixelsPerPixel = density;
        const QImage picture = paintTile(data, request);
        double darkness = 0;
        for (int x = 0; x < devicePixels; ++x) {
            darkness +=
                light().land.lightness() - picture.pixelColor(x, devicePixels / 2).lightness();
        }
        return darkness / density;
    };
    EXPECT_NEAR(darknessOf(1024, 2), darknessOf(512, 1), 0.15 * darknessOf(512, 1));
}

TEST(TilePainter, AStretchedTileShowsWhatItsZoomOnTheScreenShows) {
    // A street comes at zoom 11: half way between the tile's own and the next, not at its own.
    TileData data = dataOf({{"streets", {line("residential", {{0.5F, -0.1F}, {0.5F, 1.1F}})}}});
    data.vectorKey = {10, 5, 5};
    TileRequest request = requestFor(data.vectorKey);
    EXPECT_EQ(profile(paintTile(data, request), true, 100).find('#'), std::string::npos);
    request.devicePixelsPerMapPoint = 1100 / request.key.side();
    EXPECT_NE(paintTile(data, request).pixelColor(550, 100), light().land);
}

TEST(TilePainter, ImageryIsDrawnInItsPlace) {
    TileData data;
    QImage red(256, 256, QImage::Format_RGB32);
    red.fill(Qt::red);
    QImage blue = red;
    blue.fill(Qt::blue);
    data.imagery = {{tile.ancestor(2), red}, {itsLastChild, blue}};
    const QImage picture = paintTile(data, requestFor(tile, BasemapTheme::satellite));
    EXPECT_EQ(at(picture, 0.25, 0.25), QColor(Qt::red));
    EXPECT_EQ(at(picture, 0.75, 0.25), QColor(Qt::red));
    EXPECT_EQ(at(picture, 0.75, 0.75), QColor(Qt::blue));
}

TEST(TilePainter, ImageryCoversEveryPixelOfItsTile) {
    TileData data;
    QImage red(256, 256, QImage::Format_RGB32);
    red.fill(Qt::red);
    for (const TileKey imagery : {tile, tile.ancestor(4)}) {
        data.imagery = {{imagery, red}};
        const QImage picture = paintTile(data, requestFor(tile, BasemapTheme::satellite, 724.08));
        QImage expected(picture.size(), picture.format());
        expected.fill(Qt::red);
        EXPECT_EQ(picture, expected) << imagery.zoom;
    }
}

TEST(TilePainter, TheMarginOfImageryLiesOutsideOfItsTile) {
    QImage green(258, 258, QImage::Format_RGB32);
    green.fill(Qt::green);
    QImage red(256, 256, QImage::Format_RGB32);
    red.fill(Qt::red);
    QPainter(&green).drawImage(1, 1, red);
    TileData data;
    data.imagery = {{itsFirstChild, green, 1}};
    const QImage picture = paintTile(data, requestFor(tile, BasemapTheme::satellite));
    EXPECT_EQ(at(picture, 0.495, 0.495), QColor(Qt::red));
    EXPECT_EQ(at(picture, 0.501, 0.25), QColor(Qt::green));
}

TEST(TilePainter, OnlyHybridDrawsBordersUponImagery) {
    TileData data = dataOf({{"ocean", {area("", {square(-0.1F, 1.1F)})}},
                            {"boundaries", {border(2, {{-0.1F, 0.5F}, {1.1F, 0.5F}})}}});
    QImage red(512, 512, QImage::Format_RGB32);
    red.fill(Qt::red);
    data.imagery = {{tile, red}};
    const QImage satellite = paintTile(data, requestFor(tile, BasemapTheme::satellite));
    const QImage hybrid = paintTile(data, requestFor(tile, BasemapTheme::hybrid));
    EXPECT_EQ(at(satellite, 0.3, 0.5), QColor(Qt::red));
    EXPECT_GT(at(hybrid, 0.3, 0.5).blue(), 100);
    EXPECT_EQ(at(hybrid, 0.3, 0.2), QColor(Qt::red));
}

/// A tile with a sea in its west, a river through its middle and a road, over imagery of `imagery`.
TileData watersOver(TileKey imagery) {
    TileData data = dataOf(
        {{"ocean", {area("", {{{-0.1F, -0.1F}, {0.25F, -0.1F}, {0.25F, 1.1F}, {-0.1F, 1.1F}}})}},
         {"water_lines", {line("river", {{0.5F, -0.1F}, {0.5F, 1.1F}})}},
         {"streets", {line("motorway", {{0.75F, -0.1F}, {0.75F, 1.1F}})}}});
    QImage red(256, 256, QImage::Format_RGB32);
    red.fill(Qt::red);
    data.imagery = {{imagery, red}};
    return data;
}

TEST(TilePainter, OverEnlargedImageryWatersAreDrawnInBothThemes) {
    const TileData data = watersOver(tile.ancestor(1)); // four times as wide
    for (const BasemapTheme theme : {BasemapTheme::satellite, BasemapTheme::hybrid}) {
        const QImage picture = paintTile(data, requestFor(tile, theme));
        EXPECT_GT(at(picture, 0.1, 0.3).blue(), 60);
        EXPECT_GT(at(picture, 0.25, 0.3).blue(), 40); // the coast
        EXPECT_GT(at(picture, 0.5, 0.3).blue(), 40);
        EXPECT_EQ(at(picture, 0.4, 0.3), QColor(Qt::red));
    }
    EXPECT_EQ(at(paintTile(data, requestFor(tile, BasemapTheme::satellite)), 0.75, 0.3),
              QColor(Qt::red));
    EXPECT_NE(at(paintTile(data, requestFor(tile, BasemapTheme::hybrid)), 0.75, 0.3),
              QColor(Qt::red));
}

TEST(TilePainter, OverSharpImageryNoWaterIsDrawn) {
    const QImage picture = paintTile(watersOver(tile), requestFor(tile, BasemapTheme::satellite));
    EXPECT_EQ(at(picture, 0.1, 0.3), QColor(Qt::red));
    EXPECT_EQ(at(picture, 0.5, 0.3), QColor(Qt::red));
}

TEST(TilePainter, OverImageryThatIsFinerThanTheBuiltInWatersNoneAreDrawn) {
    TileData data = watersOver({8, 48, 80});
    const TileKey near{12, 48 << 4, 80 << 4};
    EXPECT_EQ(at(paintTile(data, requestFor(near, BasemapTheme::satellite)), 0.5, 0.5),
              QColor(Qt::red));
    data.imagery.front().key = data.imagery.front().key.ancestor(1);
    EXPECT_NE(at(paintTile(data, requestFor(near, BasemapTheme::satellite)), 0.5, 0.5),
              QColor(Qt::red));
}

TEST(TilePainter, SharpImageryLiesUponTheWatersOfEnlargedImagery) {
    TileData data = watersOver(tile.ancestor(2));
    QImage green(256, 256, QImage::Format_RGB32);
    green.fill(Qt::green);
    data.imagery.push_back({itsFirstChild, green});
    const QImage picture = paintTile(data, requestFor(tile, BasemapTheme::satellite));
    EXPECT_EQ(at(picture, 0.1, 0.3), QColor(Qt::green));
    EXPECT_GT(at(picture, 0.1, 0.7).blue(), 60);
}

TEST(TilePainter, WithoutImageryTheMapIsDrawnInItsDarkTheme) {
    const TileData data = dataOf({{"ocean", {area("", {square(-0.1F, 1.1F)})}}});
    for (const BasemapTheme theme : {BasemapTheme::satellite, BasemapTheme::hybrid}) {
        EXPECT_EQ(paintTile(data, requestFor(tile, theme)),
                  paintTile(data, requestFor(tile, BasemapTheme::dark)));
    }
}

TEST(TilePainter, OddGeometryCostsOnlyItself) {
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float infinite = std::numeric_limits<float>::infinity();
    constexpr float far = std::numeric_limits<float>::max();
    const Points odd{{nan, 0.5F}, {0.5F, infinite}, {-far, far}, {far, -far}, {0.5F, 0.5F}};
    TileData data = dataOf(
        {{"ocean", {area("", {odd, {}, {{0.5F, 0.5F}}}), area("", {square(0.2F, 0.3F)})}},
         {"water_polygons", {area("lake", {{{nan, nan}, {nan, nan}, {nan, nan}}}), area("", {})}},
         {"streets", {line("motorway", odd), line("motorway", {}), line("ferry", odd)}},
         {"boundaries", {border(2, odd), border(4, odd)}}});
    for (const TileKey key : {tile, TileKey{22, 12 << 16, 20 << 16}}) {
        for (const BasemapTheme theme : {BasemapTheme::light, BasemapTheme::hybrid}) {
            EXPECT_FALSE(paintTile(data, requestFor(key, theme)).isNull());
        }
    }
    // What is sound beside it is still there.
    data = dataOf({{"ocean", {area("", {{{nan, nan}}}), area("", {square(0.2F, 0.3F)})}}});
    EXPECT_EQ(at(paintTile(data, requestFor(tile)), 0.25, 0.25), light().water);
}

TEST(TilePainter, ASenselessScaleGivesARasterTileAllTheSame) {
    const TileData data = dataOf({{"ocean", {area("", {square(0, 1)})}}});
    for (const double scale : {-5.0, 0.0, 1e300, std::nan(""), HUGE_VAL}) {
        TileRequest request = requestFor(tile);
        request.devicePixelsPerMapPoint = scale;
        request.devicePixelsPerPixel = std::nan("");
        EXPECT_FALSE(paintTile(data, request).isNull()) << scale;
    }
}

TEST(TilePainter, NeighboursMeetWithoutASeamAndShareNoPixel) {
    // At this scale the tiles' edge runs through the middle of a column of pixels.
    TileRequest west = requestFor(tile, BasemapTheme::light, 600.5);
    TileRequest east = west;
    east.key = {6, 13, 20};
    const auto slanted = [](TileKey key, float shift) {
        TileData data = dataOf({{"ocean",
                                 {area("",
                                       {{{-1 + shift, 0.2F},
                                         {1 + shift, 0.24F},
                                         {1 + shift, 3},
                                         {-1 + shift, 3},
                                         {-1 + shift, 0.2F}}})}}});
        data.vectorKey = key;
        return data;
    };
    const QImage left = paintTile(slanted(west.key, 1), west);
    const QImage right = paintTile(slanted(east.key, 0), east);
    ASSERT_EQ(west.pixels().x + left.width(), east.pixels().x);
    for (int y = 0; y < left.height(); ++y) {
        const QColor a = left.pixelColor(left.width() - 1, y);
        const QColor b = right.pixelColor(0, y);
        // The edge of the water falls a fiftieth of a pixel from one column to the next.
        EXPECT_NEAR(a.lightness(), b.lightness(), 2) << y;
    }
}

TEST(TilePainter, TheLastTileReachesTheWorldsEnd) {
    TileRequest last = requestFor(tile, BasemapTheme::light, 600.5);
    last.key = {2, 3, 3};
    last.devicePixelsPerMapPoint = 100.3 / worldSize;
    const PixelRect pixels = last.pixels();
    EXPECT_EQ(pixels.x + pixels.width, 101);
    EXPECT_EQ(pixels.y + pixels.height, 101);
}

/// `crossings` lines through the whole tile, side by side.
Points zigzag(int crossings) {
    Points points;
    for (int i = 0; i <= crossings; ++i) {
        const float across = static_cast<float>(i) / static_cast<float>(crossings);
        points.push_back({across, i % 2 == 0 ? 0.0F : 1.0F});
    }
    return points;
}

TEST(TilePainter, ATileWhoseLinesTakeTooLongToPaintIsRefused) {
    const auto painted = [](VectorLayer layer) {
        return paintTile(dataOf({std::move(layer)}), requestFor(tile));
    };
    for (const int crossings : {10, 20}) {
        EXPECT_FALSE(painted({"boundaries", {border(2, zigzag(crossings))}}).isNull());
        EXPECT_FALSE(painted({"boundaries", {border(4, zigzag(crossings))}}).isNull());
        EXPECT_FALSE(painted({"ocean", {area("", {zigzag(crossings)})}}).isNull());
    }
    for (const int crossings : {3'000, 20'000}) {
        EXPECT_TRUE(painted({"boundaries", {border(2, zigzag(crossings))}}).isNull());
        EXPECT_TRUE(painted({"boundaries", {border(4, zigzag(crossings))}}).isNull());
        EXPECT_TRUE(painted({"ocean", {area("", {zigzag(crossings)})}}).isNull());
    }
}

TEST(TilePainter, ManySmallPiecesAreBoundedAsLongLinesAre) {
    const auto painted = [](std::size_t count) {
        std::vector<VectorFeature> squares(count, area("", {square(0.5F, 0.51F)}));
        return paintTile(dataOf({{"ocean", std::move(squares)}}), requestFor(tile));
    };
    EXPECT_FALSE(painted(1'000).isNull());
    EXPECT_TRUE(painted(100'000).isNull());
}

} // namespace
} // namespace vasker
