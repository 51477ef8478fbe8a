#include "map/records/MapRecords.h"

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

class MapRecordsTest : public testing::Test {
  protected:
    MapRecordsTest() {
        records.setRecords(
            recordSetOf({facilityAt(54, -112, "refinery"), facilityAt(55, -112, "refinery")}));
    }
    [[nodiscard]] RecordFrame compose(const std::vector<ScreenRect>& names) {
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

} // namespace
} // namespace vasker
