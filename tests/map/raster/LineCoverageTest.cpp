#include "map/raster/LineCoverage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace vasker {
namespace {

constexpr int side = 40;

struct Masks {
    CoverageMask core{side, side};
    CoverageMask casing{side, side};
};

Masks covered(const std::vector<std::vector<ScreenPoint>>& lines,
              double core = 1,
              double casing = 2) {
    Masks masks;
    const LineCoverage coverage(core, casing);
    for (const auto& line : lines) {
        coverage.cover(line, masks.core, masks.casing);
    }
    return masks;
}

/// How many pixels are covered in all.
double areaOf(const CoverageMask& mask) {
    double area = 0;
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x) {
            area += mask.coverage(x, y) / 255.0;
        }
    }
    return area;
}

void expectSame(const CoverageMask& one, const CoverageMask& other, int tolerance) {
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            ASSERT_NEAR(one.coverage(x, y), other.coverage(x, y), tolerance) << x << ' ' << y;
        }
    }
}

TEST(LineCoverage, ALineAlongAnEdgeOfPixelsCoversWholePixels) {
    const Masks masks = covered({{{5, 20}, {35, 20}}});
    for (const int y : {19, 20}) {
        EXPECT_EQ(masks.core.coverage(20, y), 255);
        EXPECT_EQ(masks.casing.coverage(20, y), 255);
    }
    for (const int y : {18, 21}) {
        EXPECT_EQ(masks.core.coverage(20, y), 0);
        EXPECT_EQ(masks.casing.coverage(20, y), 255);
    }
    for (const int y : {17, 22}) {
        EXPECT_EQ(masks.casing.coverage(20, y), 0);
    }
}

TEST(LineCoverage, ALineThroughTheMiddleOfPixelsCoversItsNeighboursByHalf) {
    const Masks masks = covered({{{5, 20.5}, {35, 20.5}}});
    EXPECT_EQ(masks.core.coverage(20, 20), 255);
    EXPECT_NEAR(masks.core.coverage(20, 19), 128, 3);
    EXPECT_NEAR(masks.core.coverage(20, 21), 128, 3);
}

TEST(LineCoverage, InEveryDirectionALineIsAsWideAsItIsLong) {
    for (int step = 0; step < 24; ++step) {
        const double angle = step * std::numbers::pi / 12 + 0.01;
        const ScreenPoint end{20 + 12 * std::cos(angle), 20 + 12 * std::sin(angle)};
        const Masks masks = covered({{{20, 20}, end}}, 1.5, 3);
        // A rectangle and two halves of a disc.
        EXPECT_NEAR(areaOf(masks.core), 12 * 3 + std::numbers::pi * 1.5 * 1.5, 1) << step;
        EXPECT_NEAR(areaOf(masks.casing), 12 * 6 + std::numbers::pi * 9, 1) << step;
    }
}

TEST(LineCoverage, APlaceIsADisc) {
    const Masks masks = covered({{{20, 20}}}, 2, 4);
    EXPECT_NEAR(areaOf(masks.core), std::numbers::pi * 4, 0.5);
    EXPECT_NEAR(areaOf(masks.casing), std::numbers::pi * 16, 0.5);
}

TEST(LineCoverage, APointInTheMiddleOfALineChangesNothing) {
    const Masks one = covered({{{5, 7}, {35, 31}}});
    const Masks two = covered({{{5, 7}, {20, 19}, {35, 31}}});
    expectSame(one.core, two.core, 1);
    expectSame(one.casing, two.casing, 1);
}

TEST(LineCoverage, LinesInOneCorridorAreAsThinAsOne) {
    const Masks one = covered({{{5, 7}, {35, 31}}});
    const Masks many = covered({{{5, 7}, {35, 31}}, {{35, 31}, {5, 7}}, {{5, 7}, {35, 31}}});
    expectSame(one.core, many.core, 1);
    expectSame(one.casing, many.casing, 1);
}

TEST(LineCoverage, WhatLiesOutsideIsNotCovered) {
    for (const ScreenPoint far : {ScreenPoint{-20, 20}, {60, 20}, {20, -20}, {20, 60}}) {
        const Masks masks = covered({{far}, {{far.x - 3, far.y + 1}, {far.x + 3, far.y - 2}}});
        EXPECT_EQ(areaOf(masks.casing), 0) << far.x << ' ' << far.y;
    }
}

TEST(LineCoverage, ALineMayReachFarBeyondTheImage) {
    const Masks masks = covered({{{-5'000, 20}, {5'000, 20}}});
    for (const int x : {0, 20, side - 1}) {
        EXPECT_EQ(masks.core.coverage(x, 19), 255) << x;
        EXPECT_EQ(masks.core.coverage(x, 22), 0) << x;
    }
}

TEST(CoverageMask, PaintsItsColorWhereItIsCovered) {
    const Masks masks = covered({{{5, 20.5}, {35, 20.5}}});
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    masks.core.paint(image, QColor(200, 0, 100));
    EXPECT_EQ(image.pixelColor(20, 20), QColor(200, 0, 100));
    EXPECT_NEAR(image.pixelColor(20, 19).red(), 228, 3);
    EXPECT_NEAR(image.pixelColor(20, 19).green(), 128, 3);
    EXPECT_NEAR(image.pixelColor(20, 19).blue(), 178, 3);
    EXPECT_EQ(image.pixelColor(20, 18), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(20, 20).alpha(), 255);
}

TEST(CoverageMask, ATransparentColorLetsThroughWhatLiesBelow) {
    const Masks masks = covered({{{5, 20}, {35, 20}}});
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    masks.core.paint(image, QColor(0, 0, 0, 128));
    EXPECT_NEAR(image.pixelColor(20, 20).red(), 127, 2);
}

} // namespace
} // namespace vasker
