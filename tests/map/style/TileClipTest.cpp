#include "map/style/TileClip.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vasker {
namespace {

using RingPoints = std::vector<TilePoint>;

constexpr TileKey clippedTile{6, 12, 20};

/// A raster tile of 512 pixels.
TileRequest requestOfSide512(TileKey key) {
    TileRequest request;
    request.key = key;
    request.devicePixelsPerMapPoint = 512 / key.side();
    return request;
}

std::string clippedText(const QPolygonF& points) {
    QStringList words;
    for (const QPointF& point : points) {
        words.append(QString::number(point.x()) + u',' + QString::number(point.y()));
    }
    return words.join(u' ').toStdString();
}

std::string clippedText(const std::vector<QPolygonF>& lines) {
    std::string text;
    for (const QPolygonF& line : lines) {
        text += (text.empty() ? "" : " | ") + clippedText(line);
    }
    return text;
}

RingPoints squareRing(float from, float to) {
    return {{from, from}, {to, from}, {to, to}, {from, to}, {from, from}};
}

const TileClip tileClip(clippedTile, requestOfSide512(clippedTile));

TEST(TileClip, AFractionOfTheTileIsThatOfItsPixels) {
    EXPECT_EQ(clippedText(tileClip.line({{0, 0}, {0.5, 0.25}, {1, 1}})), "0,0 256,128 512,512");
    EXPECT_EQ(clippedText(tileClip.ring(squareRing(0.25, 0.75))),
              "128,128 384,128 384,384 128,384 128,128");
    EXPECT_EQ(tileClip.tileEdges(), QRectF(0, 0, 512, 512));
}

TEST(TileClip, TheDataOfAnAncestorAreCutToTheTile) {
    const RingPoints across{{0, 0.75}, {1, 0.75}};
    const TileClip first({6, 12, 20}, requestOfSide512({7, 24, 40}));
    EXPECT_EQ(clippedText(first.line({{0.25, 0.25}, {0.5, 0}})), "256,256 512,0");
    EXPECT_EQ(clippedText(first.line(across)), "");
    const TileClip last({6, 12, 20}, requestOfSide512({7, 25, 41}));
    EXPECT_EQ(clippedText(last.line(across)), "-48,256 512,256");
    EXPECT_EQ(last.tileEdges(), QRectF(0, 0, 512, 512));
}

TEST(TileClip, ALineEndsAtTheMargin) {
    EXPECT_EQ(clippedText(tileClip.line({{-1, 0.5}, {2, 0.5}})), "-48,256 560,256");
    EXPECT_EQ(clippedText(tileClip.line({{0.5, 2}, {0.5, -1}})), "256,560 256,-48");
    EXPECT_EQ(clippedText(tileClip.line({{-1, 0.5}, {-0.0927734375, 0.5}})), "-48,256 -47.5,256");
    EXPECT_EQ(clippedText(tileClip.line({{-0.0625, 0.5}, {1.0625, 0.5}})), "-32,256 544,256");
}

TEST(TileClip, ALineThatLeavesAndComesBackIsTwo) {
    EXPECT_EQ(
        clippedText(tileClip.line({{0.5, 0.5}, {0.5, -1}, {0.75, -1}, {0.75, 0.5}, {1, 0.5}})),
        "256,256 256,-48 | 384,-48 384,256 512,256");
}

TEST(TileClip, OfALineOutsideNothingIsLeft) {
    EXPECT_EQ(clippedText(tileClip.line({{-1, -1}, {-1, 2}})), "");
    EXPECT_EQ(clippedText(tileClip.line({{2, -1}, {2, 2}})), "");
    EXPECT_EQ(clippedText(tileClip.line({{-1, -1}, {2, -1}})), "");
    EXPECT_EQ(clippedText(tileClip.line({{-1, 2}, {2, 2}})), "");
    EXPECT_EQ(clippedText(tileClip.line({{-0.5, 0}, {0, -0.5}})), "") << "it passes a corner";
    EXPECT_EQ(clippedText(tileClip.line({{0.5, 0.5}})), "");
}

TEST(TileClip, PointsOfALineThatAreTooNearAreLeftOutAndTheLastStays) {
    EXPECT_EQ(clippedText(tileClip.line(
                  {{0, 0}, {0.0005F, 0}, {0, 0.0005F}, {0.5, 0}, {0.5, 0.00048828125}})),
              "0,0 256,0 256,0.25");
    EXPECT_EQ(clippedText(tileClip.line({{0, 0}, {0.0009765625, 0}, {0.5, 0}})), "0,0 0.5,0 256,0");
    EXPECT_EQ(clippedText(tileClip.line({{0, 0}, {0, 0.0009765625}, {0.5, 0}})), "0,0 0,0.5 256,0");
}

TEST(TileClip, WhatIsNoNumberIsPassedOver) {
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    constexpr float infinite = std::numeric_limits<float>::infinity();
    EXPECT_EQ(clippedText(tileClip.line({{0, 0}, {none, 0.5}, {0.5, infinite}, {0.5, 0.5}})),
              "0,0 256,256");
    EXPECT_EQ(clippedText(tileClip.ring({{0, 0}, {0.5, 0}, {none, none}, {0.5, 0.5}})),
              "0,0 256,0 256,256");
}

TEST(TileClip, ARingIsCutAtTheMargin) {
    const auto boundsOf = [](const RingPoints& ring) { return tileClip.ring(ring).boundingRect(); };
    EXPECT_EQ(boundsOf(squareRing(-1, 2)), QRectF(-48, -48, 608, 608));
    EXPECT_EQ(boundsOf(squareRing(0.5, 2)), QRectF(256, 256, 304, 304));
    EXPECT_EQ(boundsOf(squareRing(-2, 0.5)), QRectF(-48, -48, 304, 304));
    EXPECT_EQ(boundsOf({{-1, 0.25}, {0.5, 0.25}, {0.5, 0.75}, {-1, 0.75}}),
              QRectF(-48, 128, 304, 256));
}

TEST(TileClip, OfARingOutsideOrOfTwoPointsNothingIsLeft) {
    EXPECT_TRUE(tileClip.ring(squareRing(2, 3)).isEmpty());
    EXPECT_TRUE(tileClip.ring(squareRing(-2, -1)).isEmpty());
    EXPECT_TRUE(tileClip.ring({{0, 0}, {0.5, 0}}).isEmpty());
    EXPECT_TRUE(tileClip.ring({{0, 0}, {2, 0}}).isEmpty());
    EXPECT_TRUE(tileClip.ring({}).isEmpty());
    EXPECT_EQ(tileClip.ring({{0, 0}, {0.5, 0}, {0.5, 0.5}}).size(), 3);
}

TEST(TileClip, TheOutlineOfARingLeavesOutTheEdgesOfTheDatasTile) {
    EXPECT_EQ(
        clippedText(tileClip.outline({{0, 0.25}, {0.5, 0.25}, {0.5, 0.75}, {0, 0.75}, {0, 0.25}})),
        "0,128 256,128 256,384 0,384");
    EXPECT_EQ(
        clippedText(tileClip.outline({{1, 0.25}, {0.5, 0.25}, {0.5, 0.75}, {1, 0.75}, {1, 0.25}})),
        "512,128 256,128 256,384 512,384");
    EXPECT_EQ(
        clippedText(tileClip.outline({{0.25, 0}, {0.25, 0.5}, {0.75, 0.5}, {0.75, 0}, {0.25, 0}})),
        "128,0 128,256 384,256 384,0");
    EXPECT_EQ(
        clippedText(tileClip.outline({{0.25, 1}, {0.25, 0.5}, {0.75, 0.5}, {0.75, 1}, {0.25, 1}})),
        "128,512 128,256 384,256 384,512");
    EXPECT_EQ(clippedText(tileClip.outline(squareRing(0, 1))), "");
    EXPECT_EQ(clippedText(tileClip.outline(squareRing(-0.0625, 1.0625))), "");
    EXPECT_EQ(clippedText(tileClip.outline({{0, 0.5}, {0.5, 0}, {1, 0.5}, {0.5, 1}, {0, 0.5}})),
              "0,256 256,0 512,256 256,512 0,256");
}

TEST(TileClip, AFeatureShowsWhereItsBoundsTouchTheMargin) {
    const auto shows = [](const RingPoints& points) {
        VectorFeature feature;
        feature.parts = {points};
        return tileClip.shows(feature);
    };
    constexpr float touching = 48.0F / 512;
    constexpr float beyond = 49.0F / 512;
    EXPECT_TRUE(shows({{-1, 0.5}, {-touching, 0.5}}));
    EXPECT_FALSE(shows({{-1, 0.5}, {-beyond, 0.5}}));
    EXPECT_TRUE(shows({{2, 0.5}, {1 + touching, 0.5}}));
    EXPECT_FALSE(shows({{2, 0.5}, {1 + beyond, 0.5}}));
    EXPECT_TRUE(shows({{0.5, -1}, {0.5, -touching}}));
    EXPECT_FALSE(shows({{0.5, -1}, {0.5, -beyond}}));
    EXPECT_TRUE(shows({{0.5, 2}, {0.5, 1 + touching}}));
    EXPECT_FALSE(shows({{0.5, 2}, {0.5, 1 + beyond}}));
    EXPECT_FALSE(shows({}));
}

} // namespace
} // namespace vasker
