#include "tools/openmap-release/packing/tables/RouteFile.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

RouteFile read(const std::string& geometry) {
    return readRouteFile(
        "r.geojson", R"({"type":"FeatureCollection","features":[{"geometry":)" + geometry + "}]}");
}

TEST(RouteFile, KeepEveryLineAndVertexInOrder) {
    const RouteFile file =
        read(R"({"type":"MultiLineString","coordinates":[[[-1,2],[-3,4],[-3,4]],[[5,6],[7,8]]]})");
    ASSERT_EQ(file.routes.size(), 2U);
    EXPECT_EQ(file.routes[0], (OpenMapRelease::Route{{-1, 2}, {-3, 4}, {-3, 4}}));
    EXPECT_EQ(file.routes[1], (OpenMapRelease::Route{{5, 6}, {7, 8}}));
}

TEST(RouteFile, RoundToSixDecimalsAndLeaveThirdCoordinatesOut) {
    const RouteFile file =
        read(R"({"type":"LineString","coordinates":[[-110.12345649,50.1234565],[-110,50,12.5]]})");
    EXPECT_EQ(file.routes[0], (OpenMapRelease::Route{{-110.123456, 50.123457}, {-110, 50}}));
    EXPECT_EQ(file.thirdCoordinates, 1U);
}

TEST(RouteFile, LeaveStrayPointsAndLoneVerticesOut) {
    EXPECT_EQ(read(R"({"type":"Point","coordinates":[1,2]})").strayPoints, 1U);
    const RouteFile lone = read(R"({"type":"LineString","coordinates":[[1,2]]})");
    EXPECT_EQ(lone.loneVertices, 1U);
    EXPECT_TRUE(lone.routes.empty());
    EXPECT_TRUE(read("null").routes.empty());
}

TEST(RouteFile, RefuseWhatIsNoLine) {
    for (const std::string geometry : {R"({"type":"Polygon","coordinates":[[[1,2],[3,4],[1,2]]]})",
                                       R"({"type":"LineString","coordinates":[[1,2],[3]]})",
                                       R"({"type":"LineString","coordinates":[[1,2],["3",4]]})",
                                       R"({"type":"LineString","coordinates":[[1,2],[200,4]]})",
                                       R"({"type":"LineString"})",
                                       "7",
                                       "{"}) {
        EXPECT_THROW((void)read(geometry), InputError) << geometry;
    }
}

} // namespace
} // namespace vasker
