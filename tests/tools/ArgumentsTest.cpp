#include "tools/openmap-release/Arguments.h"

#include <gtest/gtest.h>

#include <array>

namespace vasker {
namespace {

constexpr auto shapes = std::to_array<OptionShape>(
    {{"--query"}, {"--explain", OptionShape::Takes::nothing}, {"--records"}});

Arguments sorted(std::vector<std::string_view> words) {
    return {words, shapes};
}

TEST(Arguments, AnOptionTakesTheNextWordOrWhatFollowsTheEqualsSign) {
    EXPECT_EQ(sorted({"--query", "gas"}).value("--query"), "gas");
    EXPECT_EQ(sorted({"--query=a=b"}).value("--query"), "a=b");
    EXPECT_EQ(sorted({"--query="}).value("--query"), "");
    EXPECT_EQ(sorted({"--query", "-x"}).value("--query"), "-x");
    EXPECT_EQ(sorted({"file"}).value("--query"), std::nullopt);
}

TEST(Arguments, AfterTwoDashesEverythingIsAnOperand) {
    EXPECT_EQ(sorted({"--", "--query"}).onlyOperand("FILE"), "--query");
}

TEST(Arguments, AFlagIsThereOrNot) {
    EXPECT_TRUE(sorted({"--explain", "f"}).has("--explain"));
    EXPECT_FALSE(sorted({"f"}).has("--explain"));
}

TEST(Arguments, ANumberHasDigitsOnlyAndFitsSixtyFourBits) {
    EXPECT_EQ(sorted({"--records", "18446744073709551615"}).requiredNumber("--records"),
              18446744073709551615U);
    for (const std::string_view text : {"", "-1", "+1", "1.0", "1 ", "18446744073709551616"}) {
        EXPECT_THROW((void)Arguments(std::array{std::string_view("--records"), text}, shapes)
                         .requiredNumber("--records"),
                     UsageError)
            << text;
    }
}

} // namespace
} // namespace vasker
