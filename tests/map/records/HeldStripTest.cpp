#include "map/records/HeldStrip.h"

#include "map/records/RouteStrip.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

class HeldStripTest : public testing::Test {
  protected:
    HeldStrip::Placed shown(const Camera& camera) {
        const RecordGeometry& geometry = records.loaded->geometry;
        return held.shown(geometry, geometry.runs(), colors, camera);
    }
    [[nodiscard]] LineStrip fresh(const Camera& camera) const {
        const RecordGeometry& geometry = records.loaded->geometry;
        return routeStrip(geometry, geometry.runs(), colors, camera);
    }
    /// The strip stands where one stands that is made for `camera`.
    void expectInPlace(const HeldStrip::Placed& placed, const Camera& camera) const {
        const LineStrip expected = fresh(camera);
        ASSERT_EQ(placed.strip->size(), expected.size());
        ASSERT_FALSE(expected.empty());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_NEAR(
                double{(*placed.strip)[i].x} + placed.offset.x, double{expected[i].x}, 0.01);
            EXPECT_NEAR(
                double{(*placed.strip)[i].y} + placed.offset.y, double{expected[i].y}, 0.01);
        }
    }

    const RecordSet records = recordSetOf({pipelineAlong({{{-114, 51}, {-112, 53}, {-110, 52}}})});
    const RouteColors colors = RouteColors(1, Rgb{10, 20, 30});
    const Camera home{CameraPose{coordinateToMapPoint({52, -112}), 1e-4, 0, 0}, {960, 712}};
    HeldStrip held;
};

TEST_F(HeldStripTest, AShiftedMapShiftsItsStrip) {
    const auto first = shown(home);
    expectInPlace(first, home);
    const Camera moved = home.panned(100, -40);
    const auto second = shown(moved);
    EXPECT_EQ(second.strip, first.strip);
    EXPECT_NEAR(second.offset.x, -100, 0.01);
    EXPECT_NEAR(second.offset.y, 40, 0.01);
    expectInPlace(second, moved);
}

TEST_F(HeldStripTest, WhereTheMapStaysTheStripStays) {
    const auto first = shown(home);
    const auto second = shown(home);
    EXPECT_EQ(second.strip, first.strip);
    EXPECT_EQ(second.offset, (ScreenPoint{0, 0}));
}

TEST_F(HeldStripTest, ARotatedMapShiftsItsStripToo) {
    const Camera rotated = home.rotated(30, home.focus());
    const auto first = shown(rotated);
    const Camera moved = rotated.panned(60, 60);
    const auto second = shown(moved);
    EXPECT_EQ(second.strip, first.strip);
    expectInPlace(second, moved);
}

TEST_F(HeldStripTest, BeyondItsMarginTheStripIsMadeAnew) {
    const auto first = shown(home);
    const Camera moved = home.panned(HeldStrip::margin + 1, 0);
    const auto second = shown(moved);
    EXPECT_NE(second.strip, first.strip);
    EXPECT_EQ(second.offset, (ScreenPoint{0, 0}));
}

TEST_F(HeldStripTest, AnotherScaleBearingOrTiltMakesItAnew) {
    for (const Camera& other :
         {home.zoomed(1.1, home.focus()), home.rotated(10, home.focus()), home.tilted(20)}) {
        const auto first = shown(home);
        const auto second = shown(other);
        EXPECT_NE(second.strip, first.strip);
        expectInPlace(second, other);
    }
}

TEST_F(HeldStripTest, OfATiltedMapItStaysOnlyWhereTheMapStays) {
    const Camera tilted = home.tilted(30);
    const auto first = shown(tilted);
    EXPECT_EQ(shown(tilted).strip, first.strip);
    EXPECT_NE(shown(tilted.panned(10, 0)).strip, first.strip);
}

TEST_F(HeldStripTest, WhatWasDroppedIsMadeAnew) {
    const auto first = shown(home);
    held.drop();
    EXPECT_NE(shown(home).strip, first.strip);
}

/// A record of so many routes from west to east through the view, each of two points.
RecordSet pipelineOf(int routes) {
    std::vector<OpenMapRelease::Route> all;
    for (int i = 0; i < routes; ++i) {
        const double latitude = 51 + 2.0 * i / routes;
        all.push_back({{-113, latitude}, {-111, latitude}});
    }
    return recordSetOf({pipelineAlong(all)});
}

TEST_F(HeldStripTest, OfARecordWithMoreLinesThanAFrameMayPaintTheFirstAreHeld) {
    const auto lengthOf = [this](int routes) {
        const RecordSet set = pipelineOf(routes);
        const RecordGeometry& geometry = set.loaded->geometry;
        return HeldStrip().shown(geometry, geometry.runs(), colors, home).strip->size();
    };
    const std::size_t one = lengthOf(1);
    const std::size_t joint = lengthOf(2) - 2 * one;
    EXPECT_EQ(lengthOf(500), 500 * one + 499 * joint);
    EXPECT_LT(lengthOf(10'000), 2'000 * (one + joint));
    EXPECT_EQ(lengthOf(20'000), lengthOf(10'000));
}

} // namespace
} // namespace vasker
