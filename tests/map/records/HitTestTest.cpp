#include "map/records/HitTest.h"

#include "map/pins/PinShape.h"
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
    [[nodiscard]] std::optional<AssetIndex> hit(ScreenPoint point,
                                                double reach = pointerReach) const {
        const RecordGeometry& geometry = records.loaded->geometry;
        const std::vector<Marker> markers = markersByPriority(records);
        const MarkerLayout layout = markerLayout(markers, DetailLevel::forScale(camera.scale()));
        HighlightedMarkers highlighted;
        if (selected && !records.loaded->index.release().assets[*selected].hasRoute()) {
            highlighted.selected = Marker{*selected, geometry.points()[*selected]};
        }
        RouteColors colors(records.loaded->index.release().assets.size());
        for (const AssetIndex asset : *records.filtered) {
            colors[asset] = Rgb{};
        }
        const MarkerFrame frame = markerFrame(layout, highlighted, RecordDrawing::painted, camera);
        return hitTest(point, reach, {camera, frame, markers, geometry, colors, selected});
    }
};

TEST(HitTest, APinIsHitOnItsHeadAboveItsPoint) {
    const Scene scene{recordSetOf({facilityAt(54, -112, "storage")}), {}};
    const ScreenPoint tip = scene.at(54, -112);
    EXPECT_EQ(scene.hit({tip.x, tip.y - 20}), 0U);
    EXPECT_EQ(scene.hit({tip.x + 15, tip.y - 20}), 0U);
    EXPECT_EQ(scene.hit({tip.x + 30, tip.y - 20}), std::nullopt);
    EXPECT_EQ(scene.hit({tip.x, tip.y + 20}), std::nullopt);
}

TEST(HitTest, ADotIsHitWithinSixPixelsAndWithinTwelveForAFinger) {
    const Scene scene{
        recordSetOf({facilityAt(54, -112, "storage"), facilityAt(53.9, -112, "storage")}), {}};
    const ScreenPoint dot = scene.at(53.9, -112);
    const double edge = dotRadius + dotCasing;
    EXPECT_EQ(scene.hit({dot.x, dot.y + edge + 5.9}), 1U);
    EXPECT_EQ(scene.hit({dot.x, dot.y + edge + 6.1}), std::nullopt);
    EXPECT_EQ(scene.hit({dot.x, dot.y + edge + 11.9}, touchReach), 1U);
    EXPECT_EQ(scene.hit({dot.x, dot.y + edge + 12.1}, touchReach), std::nullopt);
}

TEST(HitTest, ALineIsHitWithinSixPixelsAndWithinTwelveForAFinger) {
    const Scene scene{recordSetOf({pipelineAlong({{{-130, 54}, {-95, 54}}})}), {}};
    const ScreenPoint middle = scene.at(54, -112);
    EXPECT_EQ(scene.hit({middle.x, middle.y + 1 + 5.9}), 0U);
    EXPECT_EQ(scene.hit({middle.x, middle.y - 1 - 5.9}), 0U);
    EXPECT_EQ(scene.hit({middle.x, middle.y + 1 + 6.1}), std::nullopt);
    EXPECT_EQ(scene.hit({middle.x, middle.y + 1 + 11.9}, touchReach), 0U);
    EXPECT_EQ(scene.hit({middle.x, middle.y + 1 + 12.1}, touchReach), std::nullopt);
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

TEST(HitTest, TheSelectedLineStandsBeforeAMarkUponIt) {
    const Scene scene{
        recordSetOf({pipelineAlong({{{-130, 54}, {-95, 54}}}), facilityAt(54, -112, "storage")}),
        0};
    EXPECT_EQ(scene.hit(scene.at(54, -112)), 0U);
}

TEST(HitTest, TheNearerMarkWinsAndOfTwoInOnePlaceTheOneOnTop) {
    const Scene scene{recordSetOf({facilityAt(54, -112, "storage"),
                                   facilityAt(53.9, -112, "storage"),
                                   facilityAt(53.3, -112, "storage"),
                                   facilityAt(53.3, -112, "storage")}),
                      {}};
    const ScreenPoint one = scene.at(53.9, -112);
    const ScreenPoint two = scene.at(53.3, -112);
    EXPECT_EQ(scene.hit({two.x, two.y - 0.4 * (two.y - one.y)}), 2U);
    EXPECT_EQ(scene.hit({two.x, two.y - 0.6 * (two.y - one.y)}), 1U);
    EXPECT_EQ(scene.hit(two), 2U);
}

TEST(HitTest, HoldsInATurnedAndTiltedViewToo) {
    Scene scene{recordSetOf({facilityAt(54, -112, "storage"),
                             facilityAt(54, -112.9, "storage"),
                             pipelineAlong({{{-130, 51}, {-95, 51}}})}),
                {}};
    scene.camera = scene.camera.rotated(130, scene.camera.focus()).tilted(50);
    EXPECT_EQ(scene.hit(scene.at(54, -112.9)), 1U);
    const ScreenPoint line = scene.at(51, -112);
    EXPECT_EQ(scene.hit(line), 2U);
    EXPECT_EQ(scene.hit({line.x + 40, line.y + 40}), std::nullopt);
}

TEST(HitTest, ARecordIsHitInEveryCopyOfTheWorldThatIsSeen) {
    Scene scene{recordSetOf({pipelineAlong({{{-10, 50}, {10, 50}}})}), {}};
    scene.camera = Camera(CameraPose{{worldSize / 2, worldSize / 3}, 300 / worldSize}, {1000, 300});
    const ScreenPoint place = scene.at(50, 0);
    EXPECT_EQ(scene.hit(place), 0U);
    EXPECT_EQ(scene.hit({place.x + 300, place.y}), 0U);
    EXPECT_EQ(scene.hit({place.x + 150, place.y}), std::nullopt);
}

TEST(SharingPlace, HoldsThoseThatNoZoomSeparates) {
    const RecordSet records = recordSetOf({facilityAt(54, -112, "storage"),
                                           facilityAt(54, -112, "gas_plant"),
                                           facilityAt(54.000001, -112, "gas_plant"),
                                           facilityAt(54.01, -112, "storage")});
    const std::vector<Marker> markers = markersByPriority(records);
    EXPECT_EQ(sharingPlace(0, markers).size(), 3U);
    EXPECT_EQ(sharingPlace(3, markers), (std::vector<AssetIndex>{3}));
    EXPECT_TRUE(sharingPlace(99, markers).empty());
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
