#include "map/records/HitTest.h"

#include "map/records/BalloonShape.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

/// A map that is looked at from the overview camera.
struct Scene {
    RecordSet records;
    std::optional<AssetIndex> selected;
    Camera camera{canadaOverview, {960, 712}};

    [[nodiscard]] ScreenPoint at(double latitude, double longitude) const {
        return camera.worldToScreen(coordinateToMapPoint({latitude, longitude}));
    }
    [[nodiscard]] std::optional<AssetIndex> hit(ScreenPoint point) const {
        const MarkerLayout layout = markerLayout(
            markersByPrecedence(records), selected, DetailLevel::forScale(camera.scale()));
        RouteColors colors(records.loaded->index.release().assets.size());
        for (const AssetIndex asset : *records.filtered) {
            colors[asset] = Rgb{};
        }
        return hitTest(point,
                       camera,
                       markerFrame(layout, selected, camera),
                       records.loaded->geometry,
                       colors,
                       selected);
    }
};

TEST(HitTest, ABalloonIsHitOnItsHeadAboveItsPoint) {
    const Scene scene{recordSetOf({facilityAt(54, -112, "storage")}), {}};
    const ScreenPoint tip = scene.at(54, -112);
    EXPECT_EQ(scene.hit({tip.x, tip.y - 20}), 0U);
    EXPECT_EQ(scene.hit({tip.x + 15, tip.y - 20}), 0U);
    EXPECT_EQ(scene.hit({tip.x + 30, tip.y - 20}), std::nullopt);
    EXPECT_EQ(scene.hit({tip.x, tip.y + 20}), std::nullopt);
}

TEST(HitTest, ADotIsHitWithinEightPixels) {
    const Scene scene{
        recordSetOf({facilityAt(54, -112, "storage"), facilityAt(53.9, -112, "storage")}), {}};
    const ScreenPoint dot = scene.at(53.9, -112);
    EXPECT_EQ(scene.hit({dot.x + 7, dot.y + 3}), 1U);
    EXPECT_EQ(scene.hit({dot.x + 20, dot.y + 20}), std::nullopt);
}

TEST(HitTest, ALineIsHitWithinEightPixels) {
    const Scene scene{recordSetOf({pipelineAlong({{{-130, 54}, {-95, 54}}})}), {}};
    const ScreenPoint middle = scene.at(54, -112);
    EXPECT_EQ(scene.hit({middle.x, middle.y + 7.5}), 0U);
    EXPECT_EQ(scene.hit({middle.x, middle.y - 7.5}), 0U);
    EXPECT_EQ(scene.hit({middle.x, middle.y + 9}), std::nullopt);
}

TEST(HitTest, AnyLineOfARecordSelectsTheSameRecord) {
    const Scene scene{
        recordSetOf({pipelineAlong({{{-130, 54}, {-120, 54}}, {{-110, 50}, {-100, 50}}})}), {}};
    EXPECT_EQ(scene.hit(scene.at(54, -125)), 0U);
    EXPECT_EQ(scene.hit(scene.at(50, -105)), 0U);
}

TEST(HitTest, AMarkStandsBeforeALine) {
    const Scene scene{
        recordSetOf({pipelineAlong({{{-130, 54}, {-95, 54}}}), facilityAt(54, -112, "storage")}),
        {}};
    EXPECT_EQ(scene.hit(scene.at(54, -112)), 1U);
}

TEST(HitTest, TheNearerLineWins) {
    const Scene scene{recordSetOf({pipelineAlong({{{-130, 54}, {-95, 54}}}),
                                   pipelineAlong({{{-130, 53.8}, {-95, 53.8}}})}),
                      {}};
    EXPECT_EQ(scene.hit(scene.at(53.99, -112)), 0U);
    EXPECT_EQ(scene.hit(scene.at(53.81, -112)), 1U);
}

TEST(HitTest, TheSelectedStandsBeforeAll) {
    Scene scene{recordSetOf({facilityAt(54, -112, "storage"), facilityAt(53.9, -112, "storage")}),
                1};
    const ScreenPoint tip = scene.at(53.9, -112);
    EXPECT_EQ(scene.hit({tip.x, tip.y - 30}), 1U);
    scene.records = recordSetOf(
        {pipelineAlong({{{-130, 54}, {-95, 54}}}), pipelineAlong({{{-130, 53.8}, {-95, 53.8}}})});
    EXPECT_EQ(scene.hit(scene.at(53.99, -112)), 1U);
}

TEST(HitTest, WhatTheFilterLeavesOutIsNotHit) {
    Scene scene{
        recordSetOf({facilityAt(54, -112, "storage"), pipelineAlong({{{-130, 50}, {-95, 50}}})}),
        {}};
    scene.records.filtered = std::make_shared<const std::vector<AssetIndex>>();
    EXPECT_EQ(scene.hit(scene.at(54, -112)), std::nullopt);
    EXPECT_EQ(scene.hit(scene.at(50, -112)), std::nullopt);
}

} // namespace
} // namespace vasker
