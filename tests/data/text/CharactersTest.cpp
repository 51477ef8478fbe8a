#include "data/text/Characters.h"

#include "data/Cancelled.h"
#include "tests/data/text/SampleTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace vasker {
namespace {

std::size_t countOf(std::string_view text) {
    return characterCount(text, 1'000);
}

TEST(Characters, AreWhatPeopleCount) {
    EXPECT_EQ(countOf(""), 0U);
    EXPECT_EQ(countOf("Plant 9"), 7U);
    EXPECT_EQ(countOf("\u00E9"), 1U);
    EXPECT_EQ(countOf("e\u0301\u0323"), 1U);
    EXPECT_EQ(countOf("\r\n"), 1U);
    EXPECT_EQ(countOf("\n\r"), 2U);
    EXPECT_EQ(countOf(family), 1U);
    EXPECT_EQ(countOf(flagOfCanada + flagOfCanada), 2U);
    EXPECT_EQ(countOf("\u1100\u1161\u11A8"), 1U); // Hangul letters of one syllable
}

TEST(Characters, AreCountedToOneMoreThanTheLimit) {
    EXPECT_EQ(characterCount("abcdef", 6), 6U);
    EXPECT_EQ(characterCount("abcdef", 5), 6U);
    EXPECT_EQ(characterCount("abcdef", 2), 3U);
}

TEST(Characters, IllFormedBytesCountAsReplacementCharacters) {
    EXPECT_EQ(countOf("a\xFF\xFE"
                      "b"),
              4U);
}

TEST(Characters, OfSeveralCodePointsAreFoundWithTheirPlaces) {
    EXPECT_TRUE(joinedCharacters("Montr\u00E9al \u2013 Plant\n9").empty());
    EXPECT_EQ(joinedCharacters("ae\u0301b\r\n"), (std::vector<JoinedCharacter>{{1, 4}, {5, 7}}));
    EXPECT_EQ(joinedCharacters("\u2615" + family), (std::vector<JoinedCharacter>{{3, 21}}));
}

TEST(Characters, AreTheSameOnEveryThread) {
    std::size_t count = 0;
    std::thread([&] { count = countOf(family + "e\u0301"); }).join();
    EXPECT_EQ(count, 2U);
}

TEST(Characters, OfOneMillionCodePointsAreCounted) {
    for (const std::string_view part : {"\u0301", "\u1100", "\u200D", "\u09BE", "\u0600"}) {
        std::string text = "x";
        for (int each = 0; each < 1'000'000; ++each) {
            text += part;
        }
        EXPECT_LE(countOf(text), 2U);
    }
}

TEST(Characters, AreNoLongerLookedForWhenAStopIsRequested) {
    std::stop_source stop;
    stop.request_stop();
    std::string text;
    for (int each = 0; each < 100'000; ++each) {
        text += "x\u0302";
    }
    EXPECT_THROW(static_cast<void>(joinedCharacters(text, stop.get_token())), Cancelled);
}

} // namespace
} // namespace vasker
