#include "map/records/MarkerFrame.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace vasker {
namespace {

constexpr DetailLevel overview{9};

std::vector<AssetIndex> assetsOf(const std::vector<Marker>& markers) {
    std::vector<AssetIndex> assets;
    for (const Marker& marker : markers) {
        assets.push_back(marker.asset);
    }
    return assets;
}

/// 3,000 facilities of five kinds, crowded around one place.
RecordSet crowd() {
    std::mt19937 random(5);
    std::normal_distribution<double> spread(0, 1.5);
    std::vector<OpenMapRelease::Asset> assets;
    for (int i = 0; i < 3000; ++i) {
        const char* kinds[] = {"gas_plant", "gas_plant", "battery", "storage", "lng_plant"};
        assets.push_back(facilityAt(54 + spread(random), -114 + spread(random), kinds[i % 5]));
    }
    return recordSetOf(std::move(assets));
}

TEST(MarkerLayout, RarerKindsComeFirstThenTheOrderOfTheList) {
    const RecordSet records = recordSetOf({facilityAt(50, -110, "gas_plant"),
                                           facilityAt(51, -111, "gas_plant"),
                                           facilityAt(52, -112, "lng_plant")});
    EXPECT_EQ(assetsOf(markersByPriority(records)), (std::vector<AssetIndex>{2, 0, 1}));
}

TEST(MarkerLayout, EquallyRareKindsKeepTheOrderOfTheList) {
    const RecordSet records = recordSetOf({facilityAt(50, -110, "storage"),
                                           facilityAt(51, -111, "terminal"),
                                           facilityAt(52, -112, "storage"),
                                           facilityAt(53, -113, "terminal"),
                                           facilityAt(54, -114, "lng_plant")});
    EXPECT_EQ(assetsOf(markersByPriority(records)), (std::vector<AssetIndex>{4, 0, 1, 2, 3}));
}

TEST(MarkerLayout, RarityIsCountedInTheWholeRelease) {
    RecordSet records = recordSetOf({facilityAt(50, -110, "storage"),
                                     facilityAt(51, -111, "storage"),
                                     facilityAt(52, -112, "terminal")});
    records.filtered =
        std::make_shared<const std::vector<AssetIndex>>(std::vector<AssetIndex>{0, 2});
    EXPECT_EQ(assetsOf(markersByPriority(records)), (std::vector<AssetIndex>{2, 0}));
}

TEST(MarkerLayout, AKindWithoutAnIconComesLastAndIsQuiet) {
    const RecordSet records = recordSetOf({facilityAt(50, -110, "battery"),
                                           facilityAt(51, -111, "gas_plant"),
                                           facilityAt(52, -112, "gas_plant")});
    const auto markers = markersByPriority(records);
    EXPECT_EQ(assetsOf(markers), (std::vector<AssetIndex>{1, 2, 0}));
    EXPECT_FALSE(markers[0].isQuiet);
    EXPECT_TRUE(markers[2].isQuiet);
    EXPECT_LT(dotRadiusOf(markers[2]), dotRadiusOf(markers[0]));
}

TEST(MarkerLayout, AQuietDotIsLeftOutOnlyWhereItLiesWhollyUnderALargerOne) {
    const DetailLevel level(20);
    const double pixel = 360 / (worldSize * level.maximumScale()); // degrees of longitude
    const auto dots = [&](const char* kind, double apart) {
        const RecordSet records = recordSetOf({facilityAt(50, -110, "storage"), // has the pin
                                               facilityAt(50, -110 + 20 * pixel, "storage"),
                                               facilityAt(50, -110 + (20 + apart) * pixel, kind)});
        return markerLayout(markersByPriority(records), level).dots.size();
    };
    EXPECT_EQ(dots("storage", 0.9), 2U);
    EXPECT_EQ(dots("battery", 0.9), 1U); // lies wholly under the disc that is a pixel larger
    EXPECT_EQ(dots("battery", 1.1), 2U);
}

TEST(MarkerLayout, ARecordWithARouteHasNoMarker) {
    const RecordSet records =
        recordSetOf({pipelineAlong({{{-120, 50}, {-110, 55}}}), facilityAt(50, -110, "storage")});
    EXPECT_EQ(assetsOf(markersByPriority(records)), (std::vector<AssetIndex>{1}));
}

TEST(MarkerLayout, ARecordThatTheFilterLeavesOutHasNoMarker) {
    RecordSet records =
        recordSetOf({facilityAt(50, -110, "storage"), facilityAt(51, -110, "terminal")});
    records.filtered = std::make_shared<const std::vector<AssetIndex>>(
        records.loaded->index.filtered("", "terminal"));
    EXPECT_EQ(assetsOf(markersByPriority(records)), (std::vector<AssetIndex>{1}));
}

TEST(MarkerLayout, NoTwoPinsStandNearerThanTheirSpacingAtAnyScaleOfTheLevel) {
    const RecordSet records = crowd();
    const MarkerLayout layout = markerLayout(markersByPriority(records), overview);
    ASSERT_GT(layout.pins.size(), 10U);
    const double scale = overview.minimumScale();
    for (std::size_t i = 0; i < layout.pins.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            const double dx = std::abs(layout.pins[i].point.x - layout.pins[k].point.x);
            const double dy = std::abs(layout.pins[i].point.y - layout.pins[k].point.y);
            ASSERT_TRUE(dx * scale >= pinSpacingX * (1 - 1e-9) ||
                        dy * scale >= pinSpacingY * (1 - 1e-9));
        }
    }
}

TEST(MarkerLayout, EveryRecordHasAMarkOrLiesWhollyUnderOtherDots) {
    const RecordSet records = crowd();
    const auto markers = markersByPriority(records);
    const MarkerLayout layout = markerLayout(markers, overview);
    std::set<AssetIndex> marked;
    for (const auto* list : {&layout.pins, &layout.dots}) {
        for (const Marker& marker : *list) {
            EXPECT_TRUE(marked.insert(marker.asset).second) << "two marks";
        }
    }
    ASSERT_LT(marked.size(), markers.size());
    for (const double scale : {overview.maximumScale(), overview.minimumScale()}) {
        for (const Marker& marker : markers) {
            if (marked.contains(marker.asset)) {
                continue;
            }
            const double radius = (dotRadiusOf(marker) + dotCasing) / scale;
            for (int i = 0; i < 60; ++i) {
                const MapPoint rim{marker.point.x + radius * std::cos(i * 0.1047),
                                   marker.point.y + radius * std::sin(i * 0.1047)};
                const bool covered =
                    std::any_of(layout.dots.begin(), layout.dots.end(), [&](const Marker& dot) {
                        return std::hypot(dot.point.x - rim.x, dot.point.y - rim.y) <=
                               (dotRadiusOf(dot) + dotCasing + 0.5) / scale; // nobody sees a sliver
                    });
                ASSERT_TRUE(covered);
            }
        }
    }
}

TEST(MarkerLayout, TwoRecordsAtOnePointHaveOnePinAndOneDot) {
    const RecordSet records =
        recordSetOf({facilityAt(50, -110, "storage"), facilityAt(50, -110, "storage")});
    const MarkerLayout layout = markerLayout(markersByPriority(records), DetailLevel(40));
    EXPECT_EQ(layout.pins.size(), 1U);
    EXPECT_EQ(layout.dots.size(), 1U);
}

TEST(MarkerLayout, ADotOfWhichAnythingIsSeenIsDrawn) {
    const DetailLevel level(20);
    const double pixel = 360 / (worldSize * level.maximumScale()); // degrees of longitude
    std::vector<OpenMapRelease::Asset> assets;
    for (const double x : {0.0, 30.0, 35.0, 60.0, 60.2}) { // the first takes the pin
        assets.push_back(facilityAt(50, -110 + x * pixel, "storage"));
    }
    const MarkerLayout layout =
        markerLayout(markersByPriority(recordSetOf(std::move(assets))), level);
    EXPECT_EQ(layout.pins.size() + layout.dots.size(), 5U);
}

TEST(MarkerFrame, HoldsTheMarksInViewAtTheirPlaceOnTheScreen) {
    const RecordSet records =
        recordSetOf({facilityAt(54, -112, "storage"), facilityAt(20, 10, "storage")});
    const Camera camera(canadaOverview, {960, 712});
    const MarkerLayout layout =
        markerLayout(markersByPriority(records), DetailLevel::forScale(camera.scale()));
    const MarkerFrame frame = markerFrame(layout, {}, RecordDrawing::live, camera);
    ASSERT_EQ(frame.pins.size(), 1U);
    EXPECT_EQ(frame.pins[0].asset, 0U);
    EXPECT_NEAR(frame.pins[0].point.x, 480, 1e-6);
    EXPECT_NEAR(frame.pins[0].point.y, 356, 1e-6);
}

TEST(MarkerFrame, TheSelectedAndTheHoveredStandApartFromTheOthersWhateverTheyWere) {
    const RecordSet records = crowd();
    const Camera camera(canadaOverview, {960, 712});
    const auto markers = markersByPriority(records);
    const MarkerLayout layout = markerLayout(markers, DetailLevel::forScale(camera.scale()));
    const Marker pin = layout.pins.front();
    const Marker dot = layout.dots.front();
    const MarkerFrame frame = markerFrame(layout, {pin, dot}, RecordDrawing::live, camera);
    ASSERT_TRUE(frame.selected && frame.hovered);
    EXPECT_EQ(frame.selected->asset, dot.asset);
    EXPECT_EQ(frame.hovered->asset, pin.asset);
    for (const PlacedMarker& other : frame.pins) {
        EXPECT_NE(other.asset, pin.asset);
    }
}

TEST(MarkerFrame, PaintedDotsAreNotDrawnAgain) {
    const RecordSet records = crowd();
    const Camera camera(canadaOverview, {960, 712});
    const MarkerLayout layout =
        markerLayout(markersByPriority(records), DetailLevel::forScale(camera.scale()));
    EXPECT_FALSE(markerFrame(layout, {}, RecordDrawing::live, camera).dots.empty());
    EXPECT_TRUE(markerFrame(layout, {}, RecordDrawing::painted, camera).dots.empty());
}

TEST(MarkerFrame, AMarkStandsInEveryCopyOfTheWorldAndTheSelectedOnlyInTheNearest) {
    const RecordSet records = recordSetOf({facilityAt(50, 0, "storage")});
    const Camera camera(CameraPose{{worldSize / 2, worldSize / 3}, 300 / worldSize}, {1000, 300});
    const auto markers = markersByPriority(records);
    const MarkerLayout layout = markerLayout(markers, DetailLevel::forScale(camera.scale()));
    EXPECT_EQ(markerFrame(layout, {}, RecordDrawing::painted, camera).pins.size(), 3U);
    const MarkerFrame selected =
        markerFrame(layout, {std::nullopt, markers[0]}, RecordDrawing::painted, camera);
    EXPECT_TRUE(selected.pins.empty());
    ASSERT_TRUE(selected.selected);
    EXPECT_NEAR(selected.selected->point.x, 500, 1e-6);
}

TEST(MarkerFrame, NeverHoldsMoreThanFiveHundredPinsAndKeepsTheOthersAsDots) {
    std::vector<OpenMapRelease::Asset> assets;
    for (int row = 0; row < 40; ++row) {
        for (int column = 0; column < 40; ++column) {
            assets.push_back(facilityAt(45 + row * 0.5, -130 + column, "storage"));
        }
    }
    const RecordSet records = recordSetOf(std::move(assets));
    const Camera camera(canadaOverview, {4000, 3000});
    const MarkerLayout layout =
        markerLayout(markersByPriority(records), DetailLevel::forScale(camera.scale()));
    const MarkerFrame frame = markerFrame(layout, {}, RecordDrawing::live, camera);
    EXPECT_EQ(frame.pins.size(), maximumPins);
    EXPECT_GT(frame.dots.size(), 500U);
}

} // namespace
} // namespace vasker
