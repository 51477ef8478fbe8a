#include "map/basemap/ImageryMargin.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

QImage imageOf(const QColor& color) {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// `key` in red, with the margin that showing `shown` gives it; its neighbours are blue.
struct Margin {
    ImageryTile tile;
    std::vector<TileKey> lookedUp;

    Margin(TileKey key, TileKey shown) : tile{key, imageOf(Qt::red)} {
        addMargin(tile, shown, [this](TileKey neighbour) {
            lookedUp.push_back(neighbour);
            return imageOf(Qt::blue);
        });
        std::ranges::sort(lookedUp);
    }
};

TEST(ImageryMargin, ShowsTheNeighboursThatAreTouched) {
    const Margin margin({4, 3, 5}, {6, 12, 20}); // the north-western corner
    EXPECT_EQ(margin.lookedUp, (std::vector<TileKey>{{4, 2, 4}, {4, 2, 5}, {4, 3, 4}}));
    const QImage& image = margin.tile.image;
    EXPECT_EQ(margin.tile.margin, 1);
    EXPECT_EQ(image.size(), QSize(6, 6));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(3, 0), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(0, 3), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(4, 4), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(5, 3), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::red));
}

TEST(ImageryMargin, InTheMiddleOfATileNoNeighbourIsLookedUp) {
    const Margin margin({4, 3, 5}, {6, 13, 21});
    EXPECT_TRUE(margin.lookedUp.empty());
    EXPECT_EQ(margin.tile.image.pixelColor(0, 0), QColor(Qt::red));
}

TEST(ImageryMargin, GoesAcrossTheDateLineAndNotBeyondThePole) {
    EXPECT_EQ(Margin({2, 0, 0}, {4, 0, 0}).lookedUp, (std::vector<TileKey>{{2, 3, 0}}));
    EXPECT_EQ(Margin({2, 3, 3}, {4, 15, 15}).lookedUp, (std::vector<TileKey>{{2, 0, 3}}));
}

TEST(ImageryMargin, WithoutANeighbourTheTileGoesOn) {
    for (const QImage& beside : {QImage(), QImage(9, 9, QImage::Format_RGB32)}) {
        ImageryTile tile{{4, 3, 5}, imageOf(Qt::red)};
        addMargin(tile, {6, 12, 20}, [&](TileKey) { return beside; });
        EXPECT_EQ(tile.image.pixelColor(0, 0), QColor(Qt::red));
        EXPECT_EQ(tile.image.pixelColor(3, 0), QColor(Qt::red));
    }
}

} // namespace
} // namespace vasker
