#include "tools/openmap-release/packing/TextValue.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::string edited(std::string_view json) {
    return withTextValue("i.json", json, "key", "new");
}

TEST(TextValue, ReplacesTheValueAndLeavesTheRestAsItStands) {
    EXPECT_EQ(edited("{ \"a\" : [1, {\"key\": 2}],\n  \"key\" : \"old\" , \"z\": \"\\u00e9\" }\n"),
              "{ \"a\" : [1, {\"key\": 2}],\n  \"key\" : \"new\" , \"z\": \"\\u00e9\" }\n");
    EXPECT_EQ(edited(R"({"key":17})"), R"({"key":"new"})");
    EXPECT_EQ(edited(R"({"key":null,"b":true})"), R"({"key":"new","b":true})");
    EXPECT_EQ(edited(R"({"key":{"deep":[1,2]},"b":1.50})"), R"({"key":"new","b":1.50})");
    EXPECT_EQ(edited(R"({"b":1,"key":[1,[2]] })"), R"({"b":1,"key":"new" })");
}

TEST(TextValue, AddsTheKeyAtTheEnd) {
    EXPECT_EQ(edited("{}\n"), "{\n    \"key\": \"new\"\n}\n");
    EXPECT_EQ(edited("{\n    \"a\": \"}\"\n}\n"),
              "{\n    \"a\": \"}\",\n    \"key\": \"new\"\n}\n");
}

TEST(TextValue, IsAnObject) {
    for (const std::string_view json : {"", "[]", "\"key\"", "{\"key\":}", "{\"a\":1"}) {
        EXPECT_THROW((void)edited(json), InputError) << json;
    }
}

} // namespace
} // namespace vasker
