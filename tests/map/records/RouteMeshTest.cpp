#include "map/records/RouteMesh.h"

#include "map/geometry/LineDetail.h"
#include "tests/map/records/RecordSetBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace vasker {
namespace {

constexpr Rgb ink{10, 20, 30};

RouteColors allIn(const RecordSet& records, Rgb color) {
    return RouteColors(records.loaded->index.release().assets.size(), color);
}

/// The middle line of a mesh: the points of its pairs of corners, each once in a row.
std::vector<MapPoint> middleLine(const RouteMesh& mesh) {
    std::vector<MapPoint> line;
    for (const RouteVertex& vertex : mesh) {
        const MapPoint point{static_cast<double>(vertex.x), static_cast<double>(vertex.y)};
        if (line.empty() || line.back() != point) {
            line.push_back(point);
        }
    }
    return line;
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

TEST(RouteMesh, StaysWithinHalfAPixelOfThePublishedLineAtEveryLevel) {
    const RecordSet records = recordSetOf({pipelineAlong({winding(1500)})});
    const RecordGeometry& geometry = records.loaded->geometry;
    for (const int number : {6, 10, 14, 18}) {
        const DetailLevel level(number);
        std::vector<std::vector<MapPoint>> drawn;
        MapRect bounds = MapRect::null();
        for (const RouteRun& run : geometry.runs()) {
            bounds = bounds.united(run.bounds);
        }
        const TileRange range = TileRange::covering(bounds, level);
        for (TileIndex tile = range.first; tile.row <= range.last.row; ++tile.row) {
            for (tile.column = range.first.column; tile.column <= range.last.column;
                 ++tile.column) {
                auto line = middleLine(routeMesh(
                    geometry, geometry.runs(), allIn(records, ink), level, tile, LineEnds::square));
                for (MapPoint& point : line) {
                    point = {point.x / level.maximumScale() + tile.bounds(level).x,
                             point.y / level.maximumScale() + tile.bounds(level).y};
                }
                drawn.push_back(std::move(line));
            }
        }
        for (const RouteRun& run : geometry.runs()) {
            for (const MapPoint vertex : geometry.vertices(run)) {
                double nearest = INFINITY;
                for (const auto& line : drawn) {
                    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
                        nearest =
                            std::min(nearest, distanceToSegment(vertex, line[i], line[i + 1]));
                    }
                }
                ASSERT_LE(nearest * level.maximumScale(), routeTolerancePixels + 0.01) << number;
            }
        }
    }
}

TEST(RouteMesh, CoarseLevelsHaveFewerVertices) {
    const RecordSet records = recordSetOf({pipelineAlong({winding(1500)})});
    const RecordGeometry& geometry = records.loaded->geometry;
    const RouteMesh coarse = routeMesh(
        geometry, geometry.runs(), allIn(records, ink), DetailLevel(2), {0, 0}, LineEnds::square);
    EXPECT_GT(coarse.size(), 4U);
    EXPECT_LT(coarse.size(), 100U);
}

TEST(RouteMesh, ALineIsCutExactlyAtTheTilesEdge) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-179, 10}, {179, 10}}})});
    const RecordGeometry& geometry = records.loaded->geometry;
    const DetailLevel level(4); // four by four tiles of 512 pixels
    for (const std::int32_t column : {0, 1, 2, 3}) {
        const auto line = middleLine(routeMesh(
            geometry, geometry.runs(), allIn(records, ink), level, {column, 1}, LineEnds::square));
        ASSERT_EQ(line.size(), 2U);
        EXPECT_NEAR(line[0].x, column == 0 ? 2048.0 / 360 : 0, 1e-3);
        EXPECT_NEAR(line[1].x, column == 3 ? 512 - 2048.0 / 360 : 512, 1e-3);
    }
}

TEST(RouteMesh, PositionsStaySmallAtTheNearestZoomHoweverLongTheLine) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-170, -60}, {170, 75.3}}})});
    const RecordGeometry& geometry = records.loaded->geometry;
    const DetailLevel level = DetailLevel::forScale(Camera::maximumScale);
    const RouteRun& run = geometry.runs().front();
    const auto ends = geometry.vertices(run);
    const MapPoint middle{(ends[0].x + ends[1].x) / 2, (ends[0].y + ends[1].y) / 2};
    const TileIndex tile = TileRange::covering({middle.x, middle.y, 0, 0}, level).first;
    const RouteMesh mesh =
        routeMesh(geometry, geometry.runs(), allIn(records, ink), level, tile, LineEnds::square);
    ASSERT_FALSE(mesh.empty());
    for (const RouteVertex& vertex : mesh) {
        EXPECT_LE(std::abs(vertex.x), 513);
        EXPECT_LE(std::abs(vertex.y), 513);
    }
}

TEST(RouteMesh, ARecordWithoutColorIsNotDrawn) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-120, 50}, {-110, 55}}})});
    EXPECT_TRUE(routeMesh(records.loaded->geometry,
                          records.loaded->geometry.runs(),
                          RouteColors(1),
                          DetailLevel(0),
                          {0, 0},
                          LineEnds::square)
                    .empty());
}

TEST(RouteMesh, EveryVertexHasTheColorOfItsRecord) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-120, 50}, {-110, 55}}})});
    const RouteMesh mesh = routeMesh(records.loaded->geometry,
                                     records.loaded->geometry.runs(),
                                     allIn(records, ink),
                                     DetailLevel(0),
                                     {0, 0},
                                     LineEnds::square);
    ASSERT_FALSE(mesh.empty());
    for (const RouteVertex& vertex : mesh) {
        EXPECT_EQ((Rgb{vertex.red, vertex.green, vertex.blue}), ink);
    }
}

TEST(RouteMesh, ALoopTooSmallToSeeIsStillADot) {
    const RecordSet records =
        recordSetOf({pipelineAlong({{{-120, 50}, {-119.9999, 50}, {-120, 50.0001}, {-120, 50}}})});
    const RouteMesh mesh = routeMesh(records.loaded->geometry,
                                     records.loaded->geometry.runs(),
                                     allIn(records, ink),
                                     DetailLevel(4),
                                     {0, 1},
                                     LineEnds::square);
    EXPECT_EQ(middleLine(mesh).size(), 1U);
}

TEST(RouteMesh, ASharpCornerBecomesTwoRoundEnds) {
    const RecordSet records =
        recordSetOf({pipelineAlong({{{-120, 50}, {-110, 50}, {-120, 50.5}}})});
    const RouteMesh mesh = routeMesh(records.loaded->geometry,
                                     records.loaded->geometry.runs(),
                                     allIn(records, ink),
                                     DetailLevel(4),
                                     {0, 1},
                                     LineEnds::round);
    const auto tips = std::count_if(mesh.begin(), mesh.end(), [](const RouteVertex& vertex) {
        return vertex.corner >= RouteVertex::Corner::leftTip;
    });
    EXPECT_GE(tips, 8); // two at either end of the route, four at the corner
}

TEST(RouteMesh, ASquareEndReachesBeyondTheLineAndACutEndDoesNot) {
    const RecordSet records = recordSetOf({pipelineAlong({{{-170, 10}, {-100, 10}}})});
    const RecordGeometry& geometry = records.loaded->geometry;
    const RouteMesh west = routeMesh(
        geometry, geometry.runs(), allIn(records, ink), DetailLevel(4), {0, 1}, LineEnds::square);
    ASSERT_EQ(west.size(), 4U);
    EXPECT_LT(west[0].offsetX, -0.3);
    EXPECT_GT(west[2].offsetX, 0.3);
    const RouteMesh cut = routeMesh(
        geometry, geometry.runs(), allIn(records, ink), DetailLevel(6), {0, 3}, LineEnds::square);
    ASSERT_EQ(cut.size(), 4U);
    EXPECT_EQ(cut[2].offsetX, 0);
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
