#include "data/text/BytePattern.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace vasker {
namespace {

/// The place of `pattern` in `text` from `begin` on, or the length of the text.
std::size_t placeIn(std::string text, std::string_view pattern, std::size_t begin = 0) {
    const std::size_t size = text.size();
    ByteFrequencies frequencies{};
    for (const char each : text) {
        ++frequencies[static_cast<unsigned char>(each)];
    }
    text.append(BytePattern::padding, pattern.front()); // what stands there must not be found
    const char* const from = text.data();
    const BytePattern search(pattern, frequencies);
    return static_cast<std::size_t>(search.find(from + begin, from + size) - from);
}

TEST(BytePattern, IsFoundAtItsFirstPlace) {
    EXPECT_EQ(placeIn("plant of gas, gas plant", "gas"), 9U);
    EXPECT_EQ(placeIn("plant of gas, gas plant", "gas", 10), 14U);
    EXPECT_EQ(placeIn("gas", "gas"), 0U);
}

TEST(BytePattern, ThatIsAbsentIsAtTheEnd) {
    EXPECT_EQ(placeIn("plant", "gas"), 5U);
    EXPECT_EQ(placeIn("", "gas"), 0U);
    EXPECT_EQ(placeIn("ga", "gas"), 2U);
}

TEST(BytePattern, IsNotFoundAcrossTheEndOfTheText) {
    for (std::size_t size = 0; size < 70; ++size) {
        EXPECT_EQ(placeIn(std::string(size, 'b') + "a", "aa"), size + 1) << size;
        EXPECT_EQ(placeIn(std::string(size, 'b') + "aa", "aa"), size) << size;
    }
}

TEST(BytePattern, IsFoundWhereThePlainSearchFindsIt) {
    std::mt19937 random(5);
    const auto drawn = [&](std::size_t size) {
        std::string text;
        for (; size > 0; --size) {
            text += static_cast<char>('a' + random() % 2);
        }
        return text;
    };
    for (int round = 0; round < 20'000; ++round) {
        const std::string text = drawn(random() % 200);
        const std::string pattern = drawn(1 + random() % 12);
        ASSERT_EQ(placeIn(text, pattern), std::min(text.find(pattern), text.size()))
            << text << pattern;
    }
}

} // namespace
} // namespace vasker
