#include "map/records/NearRecords.h"

#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

#include <array>

namespace vasker {
namespace {

constexpr Viewport view{.width = 800, .height = 600};

// 10 by 13 degrees around 54 north, 112 west.
Camera cameraAt(double latitude, double longitude, double bearing = 0, double pitch = 0) {
    const MapPoint center = coordinateToMapPoint({latitude, longitude});
    return {CameraPose{center, 800 / (13.0 / 360 * worldSize), bearing, pitch}, view};
}

std::vector<AssetIndex> assetsOf(const std::vector<NearRecord>& records) {
    std::vector<AssetIndex> assets;
    for (const NearRecord& each : records) {
        assets.push_back(each.asset);
    }
    return assets;
}

TEST(NearRecords, ThoseInViewComeByTheirDistance) {
    const RecordSet records = recordSetOf({facilityAt(56, -112, "refinery"),
                                           facilityAt(54, -111, "refinery"),
                                           facilityAt(70, -112, "refinery"),
                                           facilityAt(54, -112.1, "refinery")});
    const auto inView = recordsInView(records, cameraAt(54, -112));
    EXPECT_EQ(assetsOf(inView), (std::vector<AssetIndex>{3, 1, 0}));
    EXPECT_NEAR(inView[2].metres, 222'390, 10);
    EXPECT_NEAR(inView[2].degrees, 0, 1e-6);
    EXPECT_NEAR(inView[1].degrees, 90, 1);
}

TEST(NearRecords, WhatIsCoveredIsNotInView) {
    const RecordSet records = recordSetOf({facilityAt(54, -106, "refinery")});
    const CameraPose pose = cameraAt(54, -112).pose();
    EXPECT_EQ(recordsInView(records, Camera(pose, view)).size(), 1U);
    EXPECT_TRUE(isAnyInView(records, Camera(pose, view)));
    Viewport covered = view;
    covered.coveredRight = 200;
    EXPECT_TRUE(recordsInView(records, Camera(pose, covered)).empty());
    EXPECT_FALSE(isAnyInView(records, Camera(pose, covered)));
    const RecordSet western = recordSetOf({facilityAt(54, -118, "refinery")});
    EXPECT_EQ(recordsInView(western, Camera(pose, view)).size(), 1U);
    covered = view;
    covered.coveredLeft = 200;
    EXPECT_TRUE(recordsInView(western, Camera(pose, covered)).empty());
}

TEST(NearRecords, ARouteIsWhereItComesNearest) {
    // Its vertices are out of view, its middle is not.
    const RecordSet records = recordSetOf({pipelineAlong({{{-130, 55}, {-90, 55}}})});
    const auto inView = recordsInView(records, cameraAt(54, -112));
    ASSERT_EQ(inView.size(), 1U);
    const Coordinate place = mapPointToCoordinate(inView[0].place);
    EXPECT_NEAR(place.longitude, -112, 1e-6);
    EXPECT_NEAR(place.latitude, 55, 1e-6);
}

TEST(NearRecords, AnInclinedRouteIsNearestWhereItRunsAcrossTheWayToIt) {
    const Camera camera = cameraAt(54, -112);
    const double right = 40 / camera.scale();
    const double down = -30 / camera.scale();
    const MapPoint foot{camera.center().x + right, camera.center().y + down};
    // A place of the line through the foot that runs across the way there.
    const auto across = [&](double times) {
        const Coordinate place =
            mapPointToCoordinate({foot.x - times * down, foot.y + times * right});
        return OpenMapRelease::Position{place.longitude, place.latitude};
    };
    for (const auto& [from, to, nearest] :
         {std::array{-3.0, 2.0, 0.0}, {2.0, -3.0, 0.0}, {1.0, 4.0, 1.0}, {-4.0, -1.0, -1.0}}) {
        const auto found =
            nearestRecord(recordSetOf({pipelineAlong({{across(from), across(to)}})}), camera);
        ASSERT_TRUE(found);
        const Coordinate place = mapPointToCoordinate(found->place);
        EXPECT_NEAR(place.longitude, across(nearest).longitude, 1e-6) << from;
        EXPECT_NEAR(place.latitude, across(nearest).latitude, 1e-6) << from;
    }
}

TEST(NearRecords, OfSeveralRoutesTheNearestCounts) {
    const RecordSet records =
        recordSetOf({pipelineAlong({{{-112.2, 57}, {-111.8, 57}}, {{-112.8, 54}, {-112.4, 54}}})});
    const auto inView = recordsInView(records, cameraAt(54, -112));
    ASSERT_EQ(inView.size(), 1U);
    EXPECT_NEAR(mapPointToCoordinate(inView[0].place).longitude, -112.4, 1e-6);
    EXPECT_NEAR(inView[0].metres, 26'145, 100);
}

TEST(NearRecords, OnlyShownRecordsCount) {
    RecordSet records =
        recordSetOf({facilityAt(54, -112, "refinery"), facilityAt(54.1, -112, "refinery")});
    records.filtered = std::make_shared<const std::vector<AssetIndex>>(1, AssetIndex{1});
    EXPECT_EQ(assetsOf(recordsInView(records, cameraAt(54, -112))), std::vector<AssetIndex>{1});
    records.filtered = std::make_shared<const std::vector<AssetIndex>>();
    EXPECT_FALSE(nearestRecord(records, cameraAt(54, -112)));
    EXPECT_FALSE(nearestRecord({}, cameraAt(54, -112)));
    EXPECT_TRUE(recordsInView({}, cameraAt(54, -112)).empty());
    EXPECT_FALSE(isAnyInView({}, cameraAt(54, -112)));
}

TEST(NearRecords, ADirectionHasARightAngleOfTheScreen) {
    const RecordSet records = recordSetOf({facilityAt(54, -112, "refinery"),
                                           facilityAt(54.5, -112.2, "refinery"),
                                           facilityAt(54.2, -110, "refinery"),
                                           facilityAt(40, -112, "refinery"),
                                           facilityAt(54, -112, "refinery")});
    const Camera camera = cameraAt(54, -112);
    EXPECT_EQ(nearestTowards(ScreenDirection::up, records, camera)->asset, 1U);
    EXPECT_EQ(nearestTowards(ScreenDirection::right, records, camera)->asset, 2U);
    EXPECT_EQ(nearestTowards(ScreenDirection::down, records, camera)->asset, 3U);
    EXPECT_FALSE(nearestTowards(ScreenDirection::left, records, camera));
}

TEST(NearRecords, OnARotatedMapADirectionIsThatOfTheScreen) {
    const RecordSet records =
        recordSetOf({facilityAt(55, -112, "refinery"), facilityAt(54, -111, "refinery")});
    const Camera camera = cameraAt(54, -112, 90, 30); // east is up
    EXPECT_EQ(nearestTowards(ScreenDirection::up, records, camera)->asset, 1U);
    EXPECT_EQ(nearestTowards(ScreenDirection::left, records, camera)->asset, 0U);
    EXPECT_NEAR(nearestTowards(ScreenDirection::left, records, camera)->degrees, 0, 1e-6);
}

TEST(NearRecords, TheDateLineIsCrossed) {
    const RecordSet records =
        recordSetOf({facilityAt(54, 179, "refinery"), pipelineAlong({{{178, 55}, {178, 56}}})});
    const Camera camera = cameraAt(54, -179);
    const auto inView = recordsInView(records, camera);
    ASSERT_EQ(assetsOf(inView), (std::vector<AssetIndex>{0, 1}));
    EXPECT_LT(inView[0].place.x, camera.center().x);
    EXPECT_LT(inView[1].place.x, camera.center().x);
    EXPECT_EQ(nearestTowards(ScreenDirection::left, records, camera)->asset, 0U);
}

TEST(NearRecords, TheNearestIsFoundFarAway) {
    const RecordSet records =
        recordSetOf({facilityAt(70, -112, "refinery"), facilityAt(60, -60, "refinery")});
    const auto found = nearestRecord(records, cameraAt(54, -112));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->asset, 0U);
    EXPECT_NEAR(found->metres, 1'779'126, 10);
}

} // namespace
} // namespace vasker
