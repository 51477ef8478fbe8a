#include "map/records/RouteStrip.h"

#include "map/geometry/LineDetail.h"
#include "map/geometry/Segment.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

namespace vasker {
namespace {

constexpr Rgb lineColor{10, 20, 30};
constexpr Viewport routeView{960, 712};

LineStrip stripOf(const RecordSet& records, const Camera& camera) {
    const RecordGeometry& geometry = records.loaded->geometry;
    return routeStrip(geometry,
                      geometry.runs(),
                      RouteColors(records.loaded->index.release().assets.size(), lineColor),
                      camera);
}

/// The middle line of a strip: the points of its corners, each once in a row.
std::vector<ScreenPoint> middleLine(const LineStrip& strip) {
    std::vector<ScreenPoint> line;
    for (const LineVertex& vertex : strip) {
        const ScreenPoint point{static_cast<double>(vertex.x), static_cast<double>(vertex.y)};
        if (line.empty() || line.back() != point) {
            line.push_back(point);
        }
    }
    return line;
}

/// Where each corner lies from its point, in halves of the line's width: "T" for the round tips.
std::string cornersOf(const LineStrip& strip) {
    std::string text;
    for (const LineVertex& vertex : strip) {
        text += (text.empty() ? "" : " ");
        text += vertex.corner >= LineVertex::Corner::leftTip ? "T" : "";
        text += std::to_string(std::lround(vertex.offsetX)) + ',' +
                std::to_string(std::lround(vertex.offsetY));
    }
    return text;
}

double distanceToLine(ScreenPoint point, const std::vector<ScreenPoint>& line) {
    double nearest = INFINITY;
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        nearest = std::min(nearest, distanceToSegment(point, line[i], line[i + 1]));
    }
    return nearest;
}

/// A winding route of `count` vertices over Alberta.
OpenMapRelease::Route winding(std::size_t count) {
    std::mt19937 random(11);
    std::normal_distribution<double> turn(0, 0.4);
    OpenMapRelease::Route route;
    double heading = 0;
    double longitude = -118;
    double latitude = 50;
    for (std::size_t i = 0; i < count; ++i) {
        route.push_back({longitude, latitude});
        heading = heading * 0.9 + turn(random);
        longitude += 0.004 * std::cos(heading);
        latitude += 0.002 * std::sin(heading) + 0.001;
    }
    return route;
}

TEST(RouteStrip, StaysWithinHalfAPixelOfThePublishedLineAtEveryZoom) {
    const RecordSet records = recordSetOf({pipelineAlong({winding(1500)})});
    const RecordGeometry& geometry = records.loaded->geometry;
    MapRect bounds = MapRect::null();
    for (const RouteRun& run : geometry.runs()) {
        bounds = bounds.united(run.bounds);
    }
    for (const double factor : {0.1, 1.0, 10.0}) {
        const Camera whole(bounds, routeView);
        const Camera camera = whole.zoomed(factor, whole.focus());
        const auto drawn = middleLine(stripOf(records, camera));
        for (const RouteRun& run : geometry.runs()) {
            for (const MapPoint vertex : geometry.vertices(run)) {
                const ScreenPoint point = camera.worldToScreen(vertex);
                const bool isSeen = point.x >= 0 && point.x <= routeView.width && point.y >= 0 &&
                                    point.y <= routeView.height;
                if (isSeen) {
                    ASSERT_LE(distanceToLine(point, drawn), routeTolerancePixels + 0.01) << factor;
                }
            }
        }
    }
}

TEST(RouteStrip, FarViewsHaveFewerVertices) {
    const RecordSet records = recordSetOf({pipelineAlong({winding(1500)})});
    const LineStrip far = stripOf(records, Camera(canadaOverview, routeView).zoomed(0.2, {1, 1}));
    EXPECT_GT(far.size(), 4U);
    EXPECT_LT(far.size(), 150U);
}

TEST(RouteStrip, LinesStayCloseToTheViewHoweverLongTheyAre) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-170, -60}, {170, 75.3}}})});
    const auto ends = records.loaded->geometry.vertices(records.loaded->geometry.runs().front());
    const MapPoint middle{(ends[0].x + ends[1].x) / 2, (ends[0].y + ends[1].y) / 2};
    for (const double pitch : {0.0, 60.0}) {
        const LineStrip strip = stripOf(
            records, Camera(CameraPose{middle, Camera::maximumScale, 30, pitch}, routeView));
        ASSERT_FALSE(strip.empty());
        for (const LineVertex& vertex : strip) {
            EXPECT_GE(vertex.x, -lineReach - 0.01);
            EXPECT_LE(vertex.x, routeView.width + lineReach + 0.01);
            EXPECT_GE(vertex.y, -lineReach - 0.01);
            EXPECT_LE(vertex.y, routeView.height + lineReach + 0.01);
        }
    }
}

TEST(RouteStrip, ALineOutOfViewIsNotThere) {
    const RecordSet records = recordSetOf({pipelineAlong({{{20, 50}, {30, 55}}})});
    EXPECT_TRUE(stripOf(records, Camera(canadaOverview, routeView)).empty());
}

TEST(RouteStrip, ALineStandsInEveryCopyOfTheWorldThatIsSeen) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-10, 50}, {10, 50}}})});
    const CameraPose nextToGreenwichTwice{{worldSize / 2, worldSize / 3}, 300 / worldSize};
    const auto line = middleLine(stripOf(records, Camera(nextToGreenwichTwice, {1000, 300})));
    EXPECT_EQ(line.size(), 6U); // three copies of the world, two points each
}

TEST(RouteStrip, ALineAcrossTheHorizonIsCutBeforeTheCamera) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-114, -80}, {-114, 84}}})});
    const Camera tilted(
        CameraPose{coordinateToMapPoint({50, -114}), Camera::maximumScale / 1000, 0, 60},
        routeView);
    const auto line = middleLine(stripOf(records, tilted));
    ASSERT_EQ(line.size(), 2U);
    EXPECT_NEAR(line[0].x, routeView.width / 2, 0.01);
    EXPECT_NEAR(std::min(line[0].y, line[1].y), -lineReach, 0.01);
    EXPECT_NEAR(std::max(line[0].y, line[1].y), routeView.height + lineReach, 0.01);
}

TEST(RouteStrip, ARecordWithoutColorIsNotDrawn) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-120, 50}, {-110, 55}}})});
    const RecordGeometry& geometry = records.loaded->geometry;
    EXPECT_TRUE(
        routeStrip(geometry, geometry.runs(), RouteColors(1), Camera(canadaOverview, routeView))
            .empty());
}

TEST(RouteStrip, EveryVertexHasTheColorOfItsRecord) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-120, 50}, {-110, 55}}})});
    const LineStrip strip = stripOf(records, Camera(canadaOverview, routeView));
    ASSERT_FALSE(strip.empty());
    for (const LineVertex& vertex : strip) {
        EXPECT_EQ((Rgb{vertex.red, vertex.green, vertex.blue}), lineColor);
    }
}

TEST(RouteStrip, ALoopTooSmallToSeeIsStillADot) {
    const RecordSet records =
        recordSetOf({pipelineAlong({{{-120, 50}, {-119.9999, 50}, {-120, 50.0001}, {-120, 50}}})});
    const LineStrip strip = stripOf(records, Camera(canadaOverview, routeView));
    EXPECT_EQ(middleLine(strip).size(), 1U);
    EXPECT_EQ(cornersOf(strip), "T-1,1 T-1,-1 0,1 0,-1 0,1 0,-1 T1,1 T1,-1");
}

TEST(RouteStrip, ALineHasAnEdgeOnEitherSideAndARoundTipAtEitherEnd) {
    const Camera camera(canadaOverview, routeView);
    EXPECT_EQ(cornersOf(stripOf(recordSetOf({pipelineAlong({{{-120, 50}, {-110, 50}}})}), camera)),
              "T-1,1 T-1,-1 0,1 0,-1 0,1 0,-1 T1,1 T1,-1");
    EXPECT_EQ(cornersOf(stripOf(recordSetOf({pipelineAlong({{{-110, 50}, {-120, 50}}})}), camera)),
              "T1,-1 T1,1 0,-1 0,1 0,-1 0,1 T-1,-1 T-1,1");
}

TEST(RouteStrip, TheEdgesOfABendMeetOnItsMitre) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-120, 50}, {-110, 50}, {-110, 45}}})});
    EXPECT_EQ(cornersOf(stripOf(records, Camera(canadaOverview, routeView))),
              "T-1,1 T-1,-1 0,1 0,-1 -1,1 1,-1 -1,0 1,0 T-1,1 T1,1");
}

TEST(RouteStrip, ASharpCornerBecomesTwoRoundEnds) {
    const RecordSet records =
        recordSetOf({pipelineAlong({{{-120, 50}, {-110, 50}, {-120, 50.5}}})});
    const LineStrip strip = stripOf(records, Camera(canadaOverview, routeView));
    const auto tips = std::count_if(strip.begin(), strip.end(), [](const LineVertex& vertex) {
        return vertex.corner >= LineVertex::Corner::leftTip;
    });
    EXPECT_GE(tips, 8); // two at either end of the route, four at the corner
}

TEST(RecordGeometry, LongRoutesAreCutIntoRunsThatShareTheirEnds) {
    const RecordSet records = recordSetOf({pipelineAlong({winding(1200)})});
    const RecordGeometry& geometry = records.loaded->geometry;
    ASSERT_EQ(geometry.runs().size(), 3U);
    for (std::size_t i = 1; i < geometry.runs().size(); ++i) {
        EXPECT_EQ(geometry.vertices(geometry.runs()[i - 1]).back(),
                  geometry.vertices(geometry.runs()[i]).front());
        EXPECT_LE(geometry.runs()[i].count, maximumRunLength);
    }
    EXPECT_EQ(geometry.runsOf(0).size(), 3U);
}

TEST(RecordGeometry, KnowsTheRunsOfEachRecord) {
    const RecordSet records =
        recordSetOf({facilityAt(50, -110, "storage"),
                     pipelineAlong({{{-120, 50}, {-110, 55}}, {{-100, 50}, {-101, 51}}}),
                     facilityAt(51, -110, "storage")});
    const RecordGeometry& geometry = records.loaded->geometry;
    EXPECT_TRUE(geometry.runsOf(0).empty());
    EXPECT_EQ(geometry.runsOf(1).size(), 2U);
    EXPECT_TRUE(geometry.runsOf(2).empty());
}

} // namespace
} // namespace vasker
