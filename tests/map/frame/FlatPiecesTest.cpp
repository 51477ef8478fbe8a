#include "map/frame/FlatPieces.h"

#include <QPointF>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vasker {
namespace {

constexpr QRectF image(0, 0, 512, 512);
constexpr QRectF everywhere(-1e6, -1e6, 2e6, 2e6);

/// The image around the middle of a picture of 960 by 748, tilted and rotated by degrees.
QTransform tilted(double tilt, double rotation) {
    QTransform transform;
    transform.translate(480, 374);
    transform.rotate(tilt, Qt::XAxis);
    transform.rotate(rotation);
    transform.translate(-300, -200);
    return transform;
}

double distance(QPointF a, QPointF b) {
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// The largest distance between where a piece paints a pixel and where it belongs.
double largestError(const QTransform& transform, const FlatPiece& piece) {
    double largest = 0;
    for (int row = 0; row <= 8; ++row) {
        for (int column = 0; column <= 8; ++column) {
            const QPointF pixel = piece.part.topLeft() + QPointF(piece.part.width() * column / 8,
                                                                 piece.part.height() * row / 8);
            largest = std::max(largest, distance(piece.transform.map(pixel), transform.map(pixel)));
        }
    }
    return largest;
}

TEST(FlatPieces, AnImageWithoutPerspectiveIsOnePiece) {
    QTransform transform;
    transform.rotate(37);
    transform.scale(1.4, 0.7);
    const auto pieces = flatPieces(transform, image, everywhere);
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0].part, image);
    EXPECT_LT(largestError(transform, pieces[0]), 1e-9);
}

class TiltedPieces : public testing::TestWithParam<double> {};
INSTANTIATE_TEST_SUITE_P(Degrees, TiltedPieces, testing::Values(1, 4, 15, 30, 45, 60));

TEST_P(TiltedPieces, HaveNoPerspectiveAndLieWhereTheImageDoes) {
    for (const double rotation : {0.0, 20.0, 45.0, 90.0, 200.0}) {
        const QTransform transform = tilted(GetParam(), rotation);
        const auto pieces = flatPieces(transform, image, everywhere);
        ASSERT_FALSE(pieces.empty()) << rotation;
        for (const FlatPiece& piece : pieces) {
            EXPECT_TRUE(piece.transform.isAffine());
            EXPECT_LE(largestError(transform, piece), 0.36) << rotation; // a quarter each way
        }
    }
}

TEST_P(TiltedPieces, CoverTheImageOnce) {
    double area = 0;
    QRectF bounds;
    for (const FlatPiece& piece : flatPieces(tilted(GetParam(), 30), image, everywhere)) {
        area += piece.part.width() * piece.part.height();
        bounds |= piece.part;
    }
    EXPECT_NEAR(area, image.width() * image.height(), 1e-3);
    EXPECT_EQ(bounds, image);
}

TEST(FlatPieces, OnlyThoseThatMayBeSeenAreMade) {
    const QTransform transform = tilted(45, 10);
    const QRectF seen(400, 300, 40, 30);
    const auto all = flatPieces(transform, image, everywhere);
    const auto some = flatPieces(transform, image, seen);
    EXPECT_LT(some.size(), all.size());
    for (const FlatPiece& piece : all) {
        const bool isMade = std::ranges::any_of(
            some, [&](const FlatPiece& each) { return each.part == piece.part; });
        EXPECT_TRUE(isMade || !transform.mapRect(piece.part).intersects(seen));
    }
}

TEST(FlatPieces, AnImageThatReachesBehindTheEyeHasNone) {
    QTransform transform;
    transform.rotate(80, Qt::XAxis);
    transform.translate(0, -4000);
    transform.scale(20, 20);
    EXPECT_TRUE(flatPieces(transform, image, everywhere).empty());
}

TEST(FlatPieces, AnImageThatTakesTooManyHasNone) {
    QTransform transform;
    transform.rotate(20, Qt::XAxis);
    transform.scale(10, 10);
    transform.translate(-256, -256);
    EXPECT_TRUE(flatPieces(transform, image, everywhere).empty());
}

} // namespace
} // namespace vasker
