#include "map/records/MapRecords.h"

#include "map/pins/PinShape.h"
#include "map/records/RouteStyle.h"
#include "map/style/MapTheme.h"
#include "presentation/Symbols.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

namespace vasker {
namespace {

const Camera nearCamera(CoordinateRegion{{54, -112}, 4, 4}, {.width = 800, .height = 600});

std::size_t dotCount(const RecordFrame& frame) {
    std::size_t count = 0;
    for (const MapLayer& layer : frame.linesAndDots) {
        if (const auto* dots = std::get_if<DotLayer>(&layer)) {
            count += dots->dots.size();
        }
    }
    return count;
}

/// The lines of a frame, in drawing order.
enum class DrawnLines : std::uint8_t { all, hovered, outline, selected };

const LineLayer& drawnLines(const RecordFrame& frame, DrawnLines lines) {
    return std::get<LineLayer>(frame.linesAndDots.at(static_cast<std::size_t>(lines)));
}

Rgb lineColorOf(const LineLayer& lines) {
    const LineVertex& vertex = lines.strip->at(lines.strip->size() / 2);
    return {vertex.red, vertex.green, vertex.blue};
}

RecordSet twoRoutes() {
    return recordSetOf({pipelineAlong({{{-114, 53}, {-112, 54}, {-110, 53}}}),
                        pipelineAlong({{{-114, 54}, {-112, 55}, {-110, 54}}})});
}

class MapRecordsTest : public testing::Test {
  protected:
    MapRecordsTest() {
        records.setRecords(
            recordSetOf({facilityAt(54, -112, "refinery"), facilityAt(55, -112, "refinery")}));
    }
    [[nodiscard]] RecordFrame compose(const std::vector<ScreenRect>& names = {}) {
        return records.compose(nearCamera, RecordDrawing::live, nullptr, 1, names);
    }

    MapRecords records;
};

TEST_F(MapRecordsTest, PinsStandWhereNoNameDoes) {
    const RecordFrame frame = compose({{0, 0, 100, 20}});
    EXPECT_EQ(frame.shownPins.size(), 2U);
    EXPECT_EQ(dotCount(frame), 0U);
}

TEST_F(MapRecordsTest, APinThatWouldCoverANameIsADot) {
    const RecordFrame frame = compose({{395, 280, 80, 15}});
    ASSERT_EQ(frame.shownPins.size(), 1U);
    EXPECT_EQ(frame.shownPins[0].asset, 1U);
    EXPECT_EQ(dotCount(frame), 1U);
    // It can still be hit.
    EXPECT_EQ(records.hit(nearCamera.focus(), pointerReach, nearCamera), AssetIndex{0});
}

TEST_F(MapRecordsTest, APinBesideANameStays) {
    const ScreenPoint tip = nearCamera.focus(); // pins are higher than wide and stand on their tip
    const double left = tip.x - pinWidth / 2;
    const double top = tip.y - pinHeight;
    EXPECT_EQ(compose({{left - 100, top, 99, pinHeight}}).shownPins.size(), 2U);
    EXPECT_EQ(compose({{left + pinWidth + 1, top, 99, pinHeight}}).shownPins.size(), 2U);
    EXPECT_EQ(compose({{left, tip.y + 1, pinWidth, 20}}).shownPins.size(), 2U);
    EXPECT_EQ(compose({{left, top + 1, 2, 2}}).shownPins.size(), 1U);
    EXPECT_EQ(compose({{left + pinWidth - 2, tip.y - 2, 20, 20}}).shownPins.size(), 1U);
}

TEST_F(MapRecordsTest, WhatDotsCoverIsToldOfPaintedOnesToo) {
    records.setRecords(
        recordSetOf({facilityAt(54, -112, "refinery"), facilityAt(54.03, -112, "refinery")}));
    const auto overlay = records.overlay(nearCamera.scale(), 1);
    for (const RecordDrawing drawing : {RecordDrawing::live, RecordDrawing::painted}) {
        const RecordFrame frame = records.compose(nearCamera, drawing, overlay.get(), 1);
        EXPECT_EQ(frame.shownPins.size(), 1U);
        ASSERT_EQ(frame.dots.size(), 1U);
        EXPECT_NEAR(frame.dots[0].x + frame.dots[0].width / 2, 400, 1e-6);
        EXPECT_EQ(frame.dots[0].width, 2 * (dotRadius + dotCasing));
    }
}

TEST_F(MapRecordsTest, APinHasTheSameRankWhereverTheMapGoes) {
    const auto ranks = [&](const Camera& camera) {
        std::vector<std::pair<AssetIndex, std::uint32_t>> found;
        for (const ShownPin& pin :
             records.compose(camera, RecordDrawing::live, nullptr, 1).shownPins) {
            found.emplace_back(pin.asset, pin.rank);
        }
        std::ranges::sort(found);
        return found;
    };
    const Camera north(CoordinateRegion{{55.5, -112}, 4, 4}, {.width = 800, .height = 600});
    ASSERT_EQ(ranks(nearCamera).size(), 2U);
    EXPECT_EQ(ranks(nearCamera), ranks(north));
}

TEST_F(MapRecordsTest, TheSelectedPinStandsInAnyCase) {
    records.setSelection(QStringLiteral("R-0"));
    EXPECT_EQ(compose({{395, 280, 80, 15}}).shownPins.size(), 2U);
}

TEST_F(MapRecordsTest, OtherRecordsTakeThePlaceOfThoseThatWereShown) {
    EXPECT_EQ(compose().shownPins.size(), 2U);
    records.setRecords(recordSetOf({facilityAt(54.5, -112, "gas_plant")}));
    const RecordFrame frame = compose();
    ASSERT_EQ(frame.shownPins.size(), 1U);
    const ScreenRect& pin = frame.shownPins[0].box;
    const ScreenPoint middle{pin.x + pin.width / 2, pin.y + pin.height / 2};
    EXPECT_EQ(records.hit(middle, pointerReach, nearCamera), AssetIndex{0});
}

TEST_F(MapRecordsTest, PinsHaveTheSymbolsOfTheirReleaseAndTheColorsOfTheTheme) {
    const QImage first = compose().pins.sheets.at(0).atlas;
    EXPECT_EQ(compose().pins.sheets.at(0).atlas, first);
    records.setRecords(recordSetOf({facilityAt(54, -112, "gas_plant")}));
    const QImage second = compose().pins.sheets.at(0).atlas;
    EXPECT_NE(second, first);
    records.setTheme(BasemapTheme::dark);
    EXPECT_NE(compose().pins.sheets.at(0).atlas, second);
}

TEST_F(MapRecordsTest, TheSelectionHoldsWhereTheRecordIsShownAgain) {
    records.setSelection(QStringLiteral("R-1"));
    const auto isHighlighted = [&] { return compose().shownPins.at(0).isHighlighted; };
    EXPECT_TRUE(isHighlighted());
    const RecordSet all = records.records();
    RecordSet some = all;
    some.filtered = std::make_shared<const std::vector<AssetIndex>>(1, AssetIndex{0});
    records.setRecords(some);
    EXPECT_FALSE(isHighlighted());
    records.setRecords(all);
    EXPECT_TRUE(isHighlighted());
}

TEST_F(MapRecordsTest, HighlightedRoutesHaveTheColorsOfTheTheme) {
    records.setRecords(twoRoutes());
    records.setHovered(QStringLiteral("R-0"));
    records.setSelection(QStringLiteral("R-1"));
    for (const BasemapTheme theme : {BasemapTheme::light, BasemapTheme::dark}) {
        records.setTheme(theme);
        const RecordFrame frame = compose();
        const Rgb expected = rgbOf(mapTheme(theme).record(color("pipeline")));
        for (const DrawnLines lines :
             {DrawnLines::all, DrawnLines::hovered, DrawnLines::selected}) {
            EXPECT_EQ(lineColorOf(drawnLines(frame, lines)), expected);
        }
    }
}

TEST_F(MapRecordsTest, AnotherHighlightedRouteIsAnotherLine) {
    records.setRecords(twoRoutes());
    records.setHovered(QStringLiteral("R-0"));
    records.setSelection(QStringLiteral("R-1"));
    const RecordFrame first = compose();
    records.setHovered(QStringLiteral("R-1"));
    records.setSelection(QStringLiteral("R-0"));
    const RecordFrame second = compose();
    EXPECT_EQ(drawnLines(first, DrawnLines::hovered).strip->front().y,
              drawnLines(second, DrawnLines::selected).strip->front().y);
    EXPECT_EQ(drawnLines(first, DrawnLines::selected).strip->front().y,
              drawnLines(second, DrawnLines::hovered).strip->front().y);
}

TEST_F(MapRecordsTest, ARouteThatIsBothSelectedAndHoveredIsDrawnAsSelectedOnly) {
    records.setRecords(twoRoutes());
    records.setHovered(QStringLiteral("R-0"));
    records.setSelection(QStringLiteral("R-0"));
    const RecordFrame frame = compose();
    EXPECT_EQ(drawnLines(frame, DrawnLines::hovered).strip, nullptr);
    EXPECT_NE(drawnLines(frame, DrawnLines::selected).strip, nullptr);
}

TEST_F(MapRecordsTest, OverImageryTheSelectedRouteHasAnOutline) {
    records.setRecords(twoRoutes());
    records.setSelection(QStringLiteral("R-0"));
    EXPECT_EQ(drawnLines(compose(), DrawnLines::outline).strip, nullptr);
    records.setTheme(BasemapTheme::satellite);
    const RecordFrame frame = compose();
    EXPECT_EQ(drawnLines(frame, DrawnLines::outline).strip,
              drawnLines(frame, DrawnLines::selected).strip);
    EXPECT_EQ(drawnLines(frame, DrawnLines::outline).style.casingWidth,
              selectedRouteCasing + selectedRouteOutline);
}

TEST_F(MapRecordsTest, WhatWasPaintedOfAnotherReleaseShowsNoMarker) {
    const auto overlay = records.overlay(nearCamera.scale(), 1);
    const auto pins = [&](const TileOverlay* painted) {
        return records.compose(nearCamera, RecordDrawing::painted, painted, 1).shownPins.size();
    };
    EXPECT_EQ(pins(overlay.get()), 2U);
    EXPECT_EQ(pins(nullptr), 0U);
    records.setRecords(recordSetOf({facilityAt(54, -112, "refinery")}));
    EXPECT_EQ(pins(overlay.get()), 0U);
}

TEST_F(MapRecordsTest, RecordsAndThemeMakeANewRevisionAndTheSelectionDoesNot) {
    const std::uint64_t first = records.revision();
    records.setSelection(QStringLiteral("R-0"));
    records.setHovered(QStringLiteral("R-1"));
    EXPECT_EQ(records.revision(), first);
    records.setTheme(BasemapTheme::dark);
    const std::uint64_t second = records.revision();
    EXPECT_GT(second, first);
    records.setRecords(records.records());
    EXPECT_GT(records.revision(), second);
}

TEST(MapRecords, WithoutRecordsThereIsNothingToShowOrToHit) {
    MapRecords records;
    records.setSelection(QStringLiteral("R-0"));
    EXPECT_EQ(records.overlay(nearCamera.scale(), 1), nullptr);
    const RecordFrame frame = records.compose(nearCamera, RecordDrawing::live, nullptr, 1);
    EXPECT_TRUE(frame.pins.sheets.empty());
    EXPECT_TRUE(frame.shownPins.empty());
    EXPECT_EQ(dotCount(frame), 0U);
    EXPECT_TRUE(records.pinShapes().empty());
    EXPECT_EQ(records.hit(nearCamera.focus(), pointerReach, nearCamera), std::nullopt);
}

} // namespace
} // namespace vasker
