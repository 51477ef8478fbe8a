#include "map/records/RecordPainter.h"

#include "map/records/RouteStyle.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace vasker {
namespace {

constexpr Rgb ink{200, 40, 10};
constexpr Rgb otherInk{10, 40, 200};
const QColor inkColor(200, 40, 10);
const QColor paper(Qt::white);
const QColor casing(0, 128, 0);

constexpr int side = 200; ///< device pixels of a picture
constexpr double scale = 1.0 / 1'024;

QColor colorOf(Rgb rgb) {
    return {rgb[0], rgb[1], rgb[2]};
}

/// `pixels` around a place over the Prairies that lies on the corner of a pixel.
struct Frame {
    MapPoint corner;
    [[nodiscard]] MapRect bounds() const {
        return {corner.x, corner.y, side / scale, side / scale};
    }
    [[nodiscard]] OpenMapRelease::Position positionAt(double x, double y) const {
        const Coordinate place = mapPointToCoordinate({corner.x + x / scale, corner.y + y / scale});
        return {place.longitude, place.latitude};
    }
};

Frame home() {
    const MapPoint point = coordinateToMapPoint({54, -112});
    return {{std::floor(point.x), std::floor(point.y)}};
}

Frame east(const Frame& frame) {
    return {{frame.corner.x + side / scale, frame.corner.y}};
}

OpenMapRelease::Asset facilityOn(const Frame& frame, double x, double y) {
    const OpenMapRelease::Position place = frame.positionAt(x, y);
    return facilityAt(place.latitude, place.longitude, "refinery");
}

class Painted {
  public:
    Painted(const RecordSet& records,
            std::vector<Rgb> tints,
            const MapRect& bounds,
            double devicePixels = 1)
        : m_image(side, side, QImage::Format_RGB32) {
        RouteColors routes(tints.begin(), tints.end());
        const RecordPainter recordPainter(records.loaded,
                                          std::move(routes),
                                          markersByPrecedence(records),
                                          {std::move(tints), casing, casing},
                                          devicePixels);
        m_image.fill(paper);
        QPainter painter(&m_image);
        recordPainter.paint(painter, bounds, scale);
    }
    [[nodiscard]] const QImage& image() const { return m_image; }
    [[nodiscard]] QColor at(int x, int y) const { return m_image.pixelColor(x, y); }
    /// A row of pixels: '#' the ink, '-' the casing, '.' the paper, '?' anything between.
    [[nodiscard]] std::string row(int y, int from, int to) const {
        std::string text;
        for (int x = from; x < to; ++x) {
            const QColor color = at(x, y);
            text += color == inkColor ? '#' : color == casing ? '-' : color == paper ? '.' : '?';
        }
        return text;
    }

  private:
    QImage m_image;
};

Painted painted(const RecordSet& records, const MapRect& bounds, double devicePixels = 1) {
    return {records,
            std::vector<Rgb>(records.loaded->index.release().assets.size(), ink),
            bounds,
            devicePixels};
}

TEST(RecordPainter, ADotStandsInItsColorAndItsCasingOnTheRecordsPoint) {
    const Frame frame = home();
    const Painted picture = painted(recordSetOf({facilityOn(frame, 100, 60)}), frame.bounds());
    EXPECT_EQ(picture.row(60, 94, 106), ".??######??.");
    EXPECT_EQ(picture.at(100, 60), inkColor);
    EXPECT_EQ(picture.at(100, 52), paper);
}

TEST(RecordPainter, OnADenserScreenADotHasMorePixels) {
    const Frame frame = home();
    const RecordSet records = recordSetOf({facilityOn(frame, 100, 60)});
    const auto inked = [](const Painted& picture) {
        const std::string row = picture.row(60, 0, side);
        return std::count(row.begin(), row.end(), '#');
    };
    EXPECT_NEAR(
        static_cast<double>(inked(painted(records, frame.bounds(), 2))), 2 * 2 * dotRadius, 2);
}

TEST(RecordPainter, OfTwoDotsTheOneOfHigherPrecedenceLiesOnTop) {
    const Frame frame = home();
    const RecordSet records = recordSetOf({facilityOn(frame, 100, 60), facilityOn(frame, 102, 60)});
    const auto markers = markersByPrecedence(records);
    std::vector<Rgb> tints{otherInk, otherInk};
    tints[markers.front().asset] = ink;
    const Painted picture(records, tints, frame.bounds());
    EXPECT_EQ(picture.at(101, 60), inkColor);
}

TEST(RecordPainter, ARouteIsTwoPixelsWideInACasing) {
    const Frame frame = home();
    const Painted picture = painted(
        recordSetOf({pipelineAlong({{frame.positionAt(100, -50), frame.positionAt(100, 250)}})}),
        frame.bounds());
    for (const int y : {0, 100, side - 1}) {
        EXPECT_EQ(picture.row(y, 95, 105), "...-##-...") << y;
    }
}

TEST(RecordPainter, OnADenserScreenARouteHasMorePixels) {
    const Frame frame = home();
    const Painted picture = painted(
        recordSetOf({pipelineAlong({{frame.positionAt(100, -50), frame.positionAt(100, 250)}})}),
        frame.bounds(),
        2);
    EXPECT_EQ(picture.row(100, 94, 106), "..--####--..");
}

TEST(RecordPainter, NoCasingCutsATrunkWhereABranchMeetsIt) {
    const Frame frame = home();
    const OpenMapRelease::Route trunk{frame.positionAt(100, -50), frame.positionAt(100, 250)};
    const OpenMapRelease::Route branch{frame.positionAt(100, 80), frame.positionAt(180, 80)};
    for (const auto& routes : {std::vector{trunk, branch}, std::vector{branch, trunk}}) {
        const Painted picture = painted(recordSetOf({pipelineAlong(routes)}), frame.bounds());
        for (int y = 0; y < side; ++y) {
            ASSERT_EQ(picture.row(y, 99, 101), "##") << y;
        }
    }
}

TEST(RecordPainter, DotsLieUponRoutes) {
    const Frame frame = home();
    const RecordSet records =
        recordSetOf({facilityOn(frame, 100, 60),
                     pipelineAlong({{frame.positionAt(50, 60), frame.positionAt(150, 60)}})});
    const Painted picture(records, {ink, otherInk}, frame.bounds());
    EXPECT_EQ(picture.at(100, 60), inkColor);
    EXPECT_EQ(picture.at(70, 60), colorOf(otherInk));
}

TEST(RecordPainter, WhatLiesElsewhereIsNotSeen) {
    const Frame frame = home();
    const Painted picture = painted(
        recordSetOf({facilityOn(frame, side + 20, 60),
                     facilityOn(frame, 60, -20),
                     pipelineAlong({{frame.positionAt(-30, -30), frame.positionAt(-30, 400)}})}),
        frame.bounds());
    QImage empty(side, side, QImage::Format_RGB32);
    empty.fill(paper);
    EXPECT_EQ(picture.image(), empty);
}

TEST(RecordPainter, ARecordThatIsNotShownHasNoLine) {
    const Frame frame = home();
    const RecordSet records =
        recordSetOf({pipelineAlong({{frame.positionAt(100, -50), frame.positionAt(100, 250)}})});
    const RecordPainter recordPainter(
        records.loaded, RouteColors(1), {}, {{ink}, casing, casing}, 1);
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(paper);
    QPainter painter(&image);
    recordPainter.paint(painter, frame.bounds(), scale);
    EXPECT_EQ(image.pixelColor(100, 100), paper);
}

TEST(RecordPainter, BothSidesOfABorderBetweenPicturesShowOneDotAndOneLine) {
    const Frame left = home();
    const Frame right = east(left);
    const RecordSet records =
        recordSetOf({facilityOn(left, side, 60),
                     pipelineAlong({{left.positionAt(20, 100), right.positionAt(150, 130)}})});
    const Painted west = painted(records, left.bounds());
    const Painted eastern = painted(records, right.bounds());
    // As one picture would show it.
    const Frame middle{{left.corner.x + side / 2 / scale, left.corner.y}};
    const QImage whole = painted(records, middle.bounds()).image();
    for (int y = 50; y < 140; ++y) {
        for (int x = 0; x < side / 2; ++x) {
            const QColor onTheLeft = west.at(side / 2 + x, y);
            const QColor onTheRight = eastern.at(x, y);
            for (const auto& [seen, expected] :
                 {std::pair(onTheLeft, whole.pixelColor(x, y)),
                  std::pair(onTheRight, whole.pixelColor(side / 2 + x, y))}) {
                ASSERT_NEAR(seen.red(), expected.red(), 12) << x << ' ' << y;
                ASSERT_NEAR(seen.blue(), expected.blue(), 12) << x << ' ' << y;
            }
        }
    }
}

} // namespace
} // namespace vasker
