#include "map/frame/LayerPainting.h"

#include <QImage>
#include <QPainter>
#include <QTransform>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace vasker {
namespace {

constexpr int pictureWidth = 300;
constexpr int pictureHeight = 200;

/// A line in the colour of a route.
void appendLine(LineStrip& strip, const std::vector<QPointF>& places) {
    const auto vertex = [](QPointF place, LineVertex::Corner corner) {
        return LineVertex{static_cast<float>(place.x()),
                          static_cast<float>(place.y()),
                          0,
                          0,
                          200,
                          30,
                          30,
                          corner};
    };
    for (const QPointF place : places) {
        strip.push_back(vertex(place, LineVertex::Corner::left));
        strip.push_back(vertex(place, LineVertex::Corner::right));
    }
    strip.push_back(vertex(places.back(), LineVertex::Corner::leftTip));
    strip.push_back(vertex(places.back(), LineVertex::Corner::rightTip));
}

/// Lines that leave the picture on every side and come back.
LineLayer wideLines() {
    LineStrip strip;
    std::vector<QPointF> zigzag;
    for (int i = 0; i < 60; ++i) {
        zigzag.emplace_back(-200 + 12 * i, i % 2 == 0 ? -150 - i : pictureHeight + 140 + i);
    }
    appendLine(strip, zigzag);
    appendLine(strip, {{-400, 60}, {150, 90}, {900, 20}, {900, 500}, {120, 150}, {-50, -600}});
    appendLine(strip, {{-60, -60}, {-50, 700}});
    return {.strip = std::make_shared<const LineStrip>(std::move(strip)),
            .style = {.width = 5, .casingWidth = 2, .casing = Qt::white, .color = {}},
            .offset = {3.5, -2.25}};
}

/// The rows of the picture from `from` to before `to`.
QImage bandOf(const LineLayer& lines, int from, int to) {
    QImage image(pictureWidth, to - from, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    painter.translate(0, -from);
    paintLayer(painter, lines, 1);
    return image;
}

int largestDifference(const QImage& one, const QImage& other) {
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            largest = std::max({largest,
                                std::abs(a.red() - b.red()),
                                std::abs(a.green() - b.green()),
                                std::abs(a.blue() - b.blue())});
        }
    }
    return largest;
}

TEST(LayerPainting, LinesArePaintedAlikeInAWholePictureAndInBands) {
    const LineLayer lines = wideLines();
    const QImage whole = bandOf(lines, 0, pictureHeight);
    for (int from = 0; from < pictureHeight; from += 25) {
        EXPECT_LE(largestDifference(bandOf(lines, from, from + 25),
                                    whole.copy(0, from, pictureWidth, 25)),
                  2)
            << from;
    }
}

/// Four raster tiles of 128 pixels around a corner, tilted and rotated by degrees.
TileLayer tiltedTiles(double tilt) {
    QTransform transform;
    transform.translate(pictureWidth / 2, pictureHeight / 2);
    transform.rotate(tilt, Qt::XAxis);
    transform.rotate(30);
    TileLayer layer;
    for (const QPointF corner : {QPointF(-128, -128), {0, -128}, {-128, 0}, {0, 0}}) {
        TileQuad quad{.tile = layer.quads.size() + 1};
        const std::array offsets = {
            QPointF(0, 0), QPointF(128, 0), QPointF(128, 128), QPointF(0, 128)};
        for (std::size_t i = 0; i < offsets.size(); ++i) {
            const QPointF place = transform.map(corner + offsets.at(i));
            quad.corners.at(i) = {place.x(), place.y(), 1};
        }
        layer.quads.push_back(quad);
    }
    return layer;
}

/// The same image for each of them.
QImage paintedTiles(const TileLayer& layer, const QImage& image) {
    TileImages images;
    for (const TileQuad& quad : layer.quads) {
        images.emplace(quad.tile, image);
    }
    QImage picture(pictureWidth, pictureHeight, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QPainter painter(&picture);
    paintTiles(painter, layer, images);
    return picture;
}

TEST(LayerPainting, NothingShowsBetweenTiltedTiles) {
    QImage tile(128, 128, QImage::Format_RGB32);
    tile.fill(Qt::blue);
    for (const double tilt : {0.5, 4.0, 20.0, 45.0, 60.0}) {
        const QImage picture = paintedTiles(tiltedTiles(tilt), tile);
        for (int y = 70; y < 130; ++y) {
            for (int x = 90; x < 210; ++x) {
                ASSERT_EQ(picture.pixelColor(x, y), Qt::blue) << tilt << ": " << x << ", " << y;
            }
        }
    }
}

TEST(LayerPainting, ATiltedTileLooksAsInPerspective) {
    QImage tile(128, 128, QImage::Format_RGB32);
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            tile.setPixel(x, y, qRgb(2 * x, 2 * y, 0)); // two steps of colour a pixel
        }
    }
    for (const double tilt : {4.0, 20.0, 45.0}) {
        TileLayer layer = tiltedTiles(tilt);
        const QImage inPieces = paintedTiles(layer, tile);
        for (TileQuad& quad : layer.quads) {
            quad.opacity = 0.999F; // as one, because it fades
        }
        const QImage asOne = paintedTiles(layer, tile);
        for (int y = 70; y < 130; ++y) {
            for (int x = 90; x < 210; ++x) {
                const QRgb a = inPieces.pixel(x, y);
                const QRgb b = asOne.pixel(x, y);
                const bool isAtAnEdge = std::max({qRed(a), qRed(b), qGreen(a), qGreen(b)}) > 240 ||
                                        std::min({qRed(a), qRed(b), qGreen(a), qGreen(b)}) < 14;
                if (!isAtAnEdge) {
                    ASSERT_NEAR(qRed(a), qRed(b), 5) << tilt << ": " << x << ", " << y;
                    ASSERT_NEAR(qGreen(a), qGreen(b), 5) << tilt << ": " << x << ", " << y;
                }
            }
        }
    }
}

TEST(LayerPainting, ALineThatOnlyCrossesThePictureIsSeen) {
    LineStrip strip;
    appendLine(strip, {{-5000, 100}, {5000, 100}});
    const LineLayer line{.strip = std::make_shared<const LineStrip>(std::move(strip)),
                         .style = {.width = 5, .casingWidth = 2, .casing = Qt::white, .color = {}},
                         .offset = {}};
    EXPECT_EQ(bandOf(line, 0, pictureHeight).pixelColor(pictureWidth / 2, 100),
              QColor(200, 30, 30));
}

} // namespace
} // namespace vasker
