// What the archive of imagery that travels with the program holds.

#include "map/geometry/Projection.h"
#include "map/style/ImageryDecoding.h"
#include "map/tiles/TileArchive.h"

#include <QColor>

#include <gtest/gtest.h>

#include <filesystem>

namespace vasker {
namespace {

constexpr const char* path = VASKER_RESOURCES "/imagery.mbtiles";
constexpr int deepestImagery = 4;
constexpr int side = 256;

QImage imageOf(TileArchive& archive, TileKey key) {
    const auto bytes = archive.tile(key);
    return bytes ? decodedImagery(QByteArray::fromStdString(*bytes)) : QImage();
}

QColor colorAt(Coordinate place, int zoom) {
    const auto archive = TileArchive::open(path);
    const MapPoint point = coordinateToMapPoint(place);
    const double tile = TileKey{zoom, 0, 0}.side();
    const int column = static_cast<int>(point.x / tile);
    const int row = static_cast<int>(point.y / tile);
    const QImage image = imageOf(*archive, {zoom, column, row});
    return image.pixelColor(static_cast<int>((point.x / tile - column) * side),
                            static_cast<int>((point.y / tile - row) * side));
}

TEST(Imagery, IsSmall) {
    EXPECT_LE(std::filesystem::file_size(path), 3'000'000U);
}

TEST(Imagery, GivesCredit) {
    const auto archive = TileArchive::open(path);
    ASSERT_NE(archive, nullptr);
    EXPECT_EQ(archive->attribution(), "NASA Blue Marble");
}

TEST(Imagery, HasEveryTileDownToItsDeepestZoomAndNoneBeyond) {
    const auto archive = TileArchive::open(path);
    ASSERT_NE(archive, nullptr);
    EXPECT_EQ(archive->maximumZoom(), deepestImagery);
    for (int zoom = 0; zoom <= deepestImagery; ++zoom) {
        for (std::int32_t index = 0; index < 1 << 2 * zoom; ++index) {
            const TileKey key{zoom, index >> zoom, index & ((1 << zoom) - 1)};
            EXPECT_EQ(imageOf(*archive, key).size(), QSize(side, side))
                << zoom << '/' << key.column << '/' << key.row;
        }
    }
    EXPECT_FALSE(archive->tile({deepestImagery + 1, 6, 10}));
}

TEST(Imagery, ShowsEveryPlaceWhereItLies) {
    for (int zoom = 2; zoom <= deepestImagery; ++zoom) {
        const QColor bay = colorAt({60, -85}, zoom); // Hudson Bay
        EXPECT_GT(bay.blue(), bay.red() + 50) << zoom;
        const QColor desert = colorAt({23, 10}, zoom); // the Sahara
        EXPECT_GT(desert.red(), desert.blue() + 30) << zoom;
        const QColor forest = colorAt({-5, -65}, zoom); // the Amazon
        EXPECT_GT(forest.green(), forest.blue()) << zoom;
        EXPECT_GT(colorAt({75, -40}, zoom).lightness(), 180) << zoom; // Greenland
        EXPECT_LT(colorAt({10, -150}, zoom).lightness(), 80) << zoom; // the Pacific
    }
}

/// White labels and their pale marks can be told from it.
TEST(Imagery, SnowIsNotWhite) {
    for (const Coordinate& place : {Coordinate{75, -40}, Coordinate{70, -110}}) {
        EXPECT_LT(colorAt(place, deepestImagery).lightness(), 235);
    }
}

} // namespace
} // namespace vasker
