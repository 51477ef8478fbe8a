#include "tools/openmap-release/packing/tables/JsonFiles.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

RouteFile read(const std::string& geometry) {
    return readRouteFile(
        "r.geojson", R"({"type":"FeatureCollection","features":[{"geometry":)" + geometry + "}]}");
}

TEST(RouteFiles, KeepEveryLineAndVertexInOrder) {
    const RouteFile file =
        read(R"({"type":"MultiLineString","coordinates":[[[-1,2],[-3,4],[-3,4]],[[5,6],[7,8]]]})");
    ASSERT_EQ(file.routes.size(), 2U);
    EXPECT_EQ(file.routes[0], (OpenMapRelease::Route{{-1, 2}, {-3, 4}, {-3, 4}}));
    EXPECT_EQ(file.routes[1], (OpenMapRelease::Route{{5, 6}, {7, 8}}));
}

TEST(RouteFiles, RoundToSixDecimalsAndLeaveThirdCoordinatesOut) {
    const RouteFile file =
        read(R"({"type":"LineString","coordinates":[[-110.12345649,50.1234565],[-110,50,12.5]]})");
    EXPECT_EQ(file.routes[0], (OpenMapRelease::Route{{-110.123456, 50.123457}, {-110, 50}}));
    EXPECT_EQ(file.thirdCoordinates, 1U);
}

TEST(RouteFiles, LeaveStrayPointsAndLoneVerticesOut) {
    EXPECT_EQ(read(R"({"type":"Point","coordinates":[1,2]})").strayPoints, 1U);
    const RouteFile lone = read(R"({"type":"LineString","coordinates":[[1,2]]})");
    EXPECT_EQ(lone.loneVertices, 1U);
    EXPECT_TRUE(lone.routes.empty());
    EXPECT_TRUE(read("null").routes.empty());
}

TEST(RouteFiles, RefuseWhatIsNoLine) {
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

std::string edited(std::string_view json) {
    return withTextValue("i.json", json, "key", "new");
}

TEST(BundleInformation, ReplacesTheValueAndLeavesTheRestAsItStands) {
    EXPECT_EQ(edited("{ \"a\" : [1, {\"key\": 2}],\n  \"key\" : \"old\" , \"z\": \"\\u00e9\" }\n"),
              "{ \"a\" : [1, {\"key\": 2}],\n  \"key\" : \"new\" , \"z\": \"\\u00e9\" }\n");
    EXPECT_EQ(edited(R"({"key":17})"), R"({"key":"new"})");
    EXPECT_EQ(edited(R"({"key":null,"b":true})"), R"({"key":"new","b":true})");
    EXPECT_EQ(edited(R"({"key":{"deep":[1,2]},"b":1.50})"), R"({"key":"new","b":1.50})");
    EXPECT_EQ(edited(R"({"b":1,"key":[1,[2]] })"), R"({"b":1,"key":"new" })");
}

TEST(BundleInformation, AddsTheKeyAtTheEnd) {
    EXPECT_EQ(edited("{}\n"), "{\n    \"key\": \"new\"\n}\n");
    EXPECT_EQ(edited("{\n    \"a\": \"}\"\n}\n"),
              "{\n    \"a\": \"}\",\n    \"key\": \"new\"\n}\n");
}

TEST(BundleInformation, IsAnObject) {
    for (const std::string_view json : {"", "[]", "\"key\"", "{\"key\":}", "{\"a\":1"}) {
        EXPECT_THROW((void)edited(json), InputError) << json;
    }
}

} // namespace
} // namespace vasker
