#include "tools/openmap-release/Suggestion.h"

#include <gtest/gtest.h>

#include <array>

namespace vasker {
namespace {

constexpr auto known =
    std::to_array<std::string_view>({"check", "list", "export", "synthesize", "NPRI-106"});

TEST(Suggestion, IsTheNearestWord) {
    EXPECT_EQ(suggestion("chekc", known), ", did you mean check?");
    EXPECT_EQ(suggestion("lst", known), ", did you mean list?");
    EXPECT_EQ(suggestion("EXPORT", known), ", did you mean export?");
    EXPECT_EQ(suggestion("syntesise", known), ", did you mean synthesize?");
    EXPECT_EQ(suggestion("npri-107", known), ", did you mean NPRI-106?");
}

TEST(Suggestion, IsNoneWhereNothingIsNear) {
    EXPECT_EQ(suggestion("explode", known), "");
    EXPECT_EQ(suggestion("x", known), "");
    EXPECT_EQ(suggestion("", known), "");
    EXPECT_EQ(suggestion(std::string(1'000'000, 'x'), known), "");
    EXPECT_EQ(suggestion("check", {}), "");
}

} // namespace
} // namespace vasker
