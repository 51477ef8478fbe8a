#include "map/records/RecordOverlay.h"

#include "map/records/RouteStyle.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vasker {
namespace {

constexpr Rgb red{200, 40, 10};
constexpr Rgb blue{10, 40, 200};
const QColor redColor(200, 40, 10);
const QColor background(Qt::white);
const QColor casing(0, 128, 0);

constexpr int pictureSide = 200; ///< device pixels of a picture
constexpr double scale = 1.0 / 1'024;

/// `pixels` around a place over the Prairies that lies on the corner of a pixel.
struct Frame {
    MapPoint corner;
    [[nodiscard]] MapRect bounds() const {
        return {corner.x, corner.y, pictureSide / scale, pictureSide / scale};
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
    return {{frame.corner.x + pictureSide / scale, frame.corner.y}};
}

OpenMapRelease::Asset facilityOn(const Frame& frame, double x, double y) {
    const OpenMapRelease::Position place = frame.positionAt(x, y);
    return facilityAt(place.latitude, place.longitude, "refinery");
}

/// An overlay of all records as dots, and routes in their colors.
RecordOverlay overlayOf(const RecordSet& records, std::vector<Rgb> colors, double devicePixels) {
    RouteColors routes(colors.begin(), colors.end());
    MarkerLayout layout;
    layout.dots = markersByPriority(records);
    return {records.loaded,
            std::move(routes),
            std::make_shared<const MarkerLayout>(std::move(layout)),
            {std::move(colors), casing, casing},
            devicePixels};
}

class Painted {
  public:
    Painted(const RecordSet& records,
            std::vector<Rgb> colors,
            const MapRect& bounds,
            double devicePixels = 1)
        : m_image(pictureSide, pictureSide, QImage::Format_RGB32) {
        const RecordOverlay overlay = overlayOf(records, std::move(colors), devicePixels);
        m_image.fill(background);
        overlay.paint(m_image, bounds, scale);
    }
    [[nodiscard]] const QImage& image() const { return m_image; }
    [[nodiscard]] QColor at(int x, int y) const { return m_image.pixelColor(x, y); }
    /// A row of pixels: '#' red, '-' the casing, '.' the background, '?' anything between.
    [[nodiscard]] std::string row(int y, int from, int to) const {
        std::string text;
        for (int x = from; x < to; ++x) {
            const QColor color = at(x, y);
            text += color == redColor     ? '#'
                    : color == casing     ? '-'
                    : color == background ? '.'
                                          : '?';
        }
        return text;
    }

  private:
    QImage m_image;
};

Painted painted(const RecordSet& records, const MapRect& bounds, double devicePixels = 1) {
    return {records,
            std::vector<Rgb>(records.loaded->index.release().assets.size(), red),
            bounds,
            devicePixels};
}

TEST(RecordOverlay, ADotStandsInItsColorAndItsCasingOnTheRecordsPoint) {
    const Frame frame = home();
    const Painted picture = painted(recordSetOf({facilityOn(frame, 100, 60)}), frame.bounds());
    EXPECT_EQ(picture.row(60, 94, 106), ".??######??.");
    EXPECT_EQ(picture.at(100, 60), redColor);
    EXPECT_EQ(picture.at(100, 52), background);
}

TEST(RecordOverlay, OnADenserScreenADotHasMorePixels) {
    const Frame frame = home();
    const RecordSet records = recordSetOf({facilityOn(frame, 100, 60)});
    const auto covered = [](const Painted& picture) {
        const std::string row = picture.row(60, 0, pictureSide);
        return std::count(row.begin(), row.end(), '#');
    };
    EXPECT_NEAR(
        static_cast<double>(covered(painted(records, frame.bounds(), 2))), 2 * 2 * dotRadius, 2);
}

TEST(RecordOverlay, OfTwoDotsTheOneOfHigherPriorityLiesOnTop) {
    const Frame frame = home();
    const RecordSet records = recordSetOf({facilityOn(frame, 100, 60), facilityOn(frame, 102, 60)});
    const auto markers = markersByPriority(records);
    std::vector<Rgb> colors{blue, blue};
    colors[markers.front().asset] = red;
    const Painted picture(records, colors, frame.bounds());
    EXPECT_EQ(picture.at(101, 60), redColor);
}

TEST(RecordOverlay, ARouteIsTwoPixelsWideInACasing) {
    const Frame frame = home();
    const Painted picture = painted(
        recordSetOf({pipelineAlong({{frame.positionAt(100, -50), frame.positionAt(100, 250)}})}),
        frame.bounds());
    for (const int y : {0, 100, pictureSide - 1}) {
        EXPECT_EQ(picture.row(y, 95, 105), "...-##-...") << y;
    }
}

TEST(RecordOverlay, OnADenserScreenARouteHasMorePixels) {
    const Frame frame = home();
    const Painted picture = painted(
        recordSetOf({pipelineAlong({{frame.positionAt(100, -50), frame.positionAt(100, 250)}})}),
        frame.bounds(),
        2);
    EXPECT_EQ(picture.row(100, 94, 106), "..--####--..");
}

TEST(RecordOverlay, NoCasingCutsATrunkWhereABranchMeetsIt) {
    const Frame frame = home();
    const OpenMapRelease::Route trunk{frame.positionAt(100, -50), frame.positionAt(100, 250)};
    const OpenMapRelease::Route branch{frame.positionAt(100, 80), frame.positionAt(180, 80)};
    for (const auto& routes : {std::vector{trunk, branch}, std::vector{branch, trunk}}) {
        const Painted picture = painted(recordSetOf({pipelineAlong(routes)}), frame.bounds());
        for (int y = 0; y < pictureSide; ++y) {
            ASSERT_EQ(picture.row(y, 99, 101), "##") << y;
        }
    }
}

TEST(RecordOverlay, DotsLieUponRoutes) {
    const Frame frame = home();
    const RecordSet records =
        recordSetOf({facilityOn(frame, 100, 60),
                     pipelineAlong({{frame.positionAt(50, 60), frame.positionAt(150, 60)}})});
    const Painted picture(records, {red, blue}, frame.bounds());
    EXPECT_EQ(picture.at(100, 60), redColor);
    EXPECT_EQ(picture.at(70, 60), colorOf(blue));
}

TEST(RecordOverlay, WhatLiesElsewhereIsNotSeen) {
    const Frame frame = home();
    const Painted picture = painted(
        recordSetOf({facilityOn(frame, pictureSide + 20, 60),
                     facilityOn(frame, 60, -20),
                     pipelineAlong({{frame.positionAt(-30, -30), frame.positionAt(-30, 400)}})}),
        frame.bounds());
    QImage empty(pictureSide, pictureSide, QImage::Format_RGB32);
    empty.fill(background);
    EXPECT_EQ(picture.image(), empty);
}

TEST(RecordOverlay, ARecordThatIsNotShownHasNoLine) {
    const Frame frame = home();
    const RecordSet records =
        recordSetOf({pipelineAlong({{frame.positionAt(100, -50), frame.positionAt(100, 250)}})});
    const RecordOverlay overlay(records.loaded,
                                RouteColors(1),
                                std::make_shared<const MarkerLayout>(),
                                {{red}, casing, casing},
                                1);
    QImage image(pictureSide, pictureSide, QImage::Format_RGB32);
    image.fill(background);
    overlay.paint(image, frame.bounds(), scale);
    EXPECT_EQ(image.pixelColor(100, 100), background);
}

TEST(RecordOverlay, BothSidesOfABorderBetweenTilesShowOneDotAndOneLine) {
    const Frame left = home();
    const Frame right = east(left);
    const RecordSet records =
        recordSetOf({facilityOn(left, pictureSide, 60),
                     pipelineAlong({{left.positionAt(20, 100), right.positionAt(150, 130)}})});
    const Painted west = painted(records, left.bounds());
    const Painted eastern = painted(records, right.bounds());
    // As one picture would show it.
    const Frame middle{{left.corner.x + pictureSide / 2 / scale, left.corner.y}};
    const QImage whole = painted(records, middle.bounds()).image();
    for (int y = 50; y < 140; ++y) {
        for (int x = 0; x < pictureSide / 2; ++x) {
            const QColor onTheLeft = west.at(pictureSide / 2 + x, y);
            const QColor onTheRight = eastern.at(x, y);
            for (const auto& [seen, expected] :
                 {std::pair(onTheLeft, whole.pixelColor(x, y)),
                  std::pair(onTheRight, whole.pixelColor(pictureSide / 2 + x, y))}) {
                ASSERT_NEAR(seen.red(), expected.red(), 12) << x << ' ' << y;
                ASSERT_NEAR(seen.blue(), expected.blue(), 12) << x << ' ' << y;
            }
        }
    }
}

TEST(RecordOverlay, WhatLiesElsewhereMakesNoDifference) {
    const Frame frame = home();
    const Frame beside = east(frame);
    RecordSet records = recordSetOf({facilityOn(frame, 100, 60), facilityOn(beside, 100, 60)});
    const RecordOverlay both = overlayOf(records, {red, red}, 1);
    const RecordOverlay recolored = overlayOf(records, {red, blue}, 1);
    EXPECT_TRUE(recolored.paintsLike(both, frame.bounds(), scale));
    EXPECT_FALSE(recolored.paintsLike(both, beside.bounds(), scale));
    records.filtered = std::make_shared<const std::vector<AssetIndex>>(1, AssetIndex{0});
    const RecordOverlay one = overlayOf(records, {red, red}, 1);
    EXPECT_TRUE(one.paintsLike(both, frame.bounds(), scale));
    EXPECT_FALSE(one.paintsLike(both, beside.bounds(), scale));
    EXPECT_FALSE(overlayOf(records, {red, red}, 2).paintsLike(one, frame.bounds(), scale));
}

TEST(RecordOverlay, ADotAtTheEdgeOfATileBelongsToBothTiles) {
    const Frame frame = home();
    RecordSet records = recordSetOf({facilityOn(frame, pictureSide + 3, 60)});
    const RecordOverlay shown = overlayOf(records, {red}, 1);
    records.filtered = std::make_shared<const std::vector<AssetIndex>>();
    EXPECT_FALSE(overlayOf(records, {red}, 1).paintsLike(shown, frame.bounds(), scale));
    EXPECT_FALSE(overlayOf(records, {red}, 1).paintsLike(shown, east(frame).bounds(), scale));
}

TEST(RecordOverlay, ARouteMakesADifferenceWhereItRuns) {
    const Frame frame = home();
    const RecordSet records =
        recordSetOf({pipelineAlong({{frame.positionAt(100, 20), frame.positionAt(100, 150)}})});
    const RecordOverlay one = overlayOf(records, {red}, 1);
    const RecordOverlay other = overlayOf(records, {blue}, 1);
    EXPECT_FALSE(other.paintsLike(one, frame.bounds(), scale));
    EXPECT_TRUE(other.paintsLike(one, east(frame).bounds(), scale));
}

} // namespace
} // namespace vasker
