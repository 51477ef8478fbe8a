#include "map/basemap/RecentlyUsed.h"

#include <gtest/gtest.h>

#include <string>

namespace vasker {
namespace {

using Words = RecentlyUsed<int, std::string>;

std::string under(Words& words, int key) {
    const std::string* const found = words.find(key);
    return found == nullptr ? "nothing" : *found;
}

TEST(RecentlyUsed, NothingStandsUnderAKeyThatWasNeverUsed) {
    Words words(2);
    EXPECT_EQ(words.find(1), nullptr);
}

TEST(RecentlyUsed, KeepsAsMuchAsItsLimit) {
    Words words(2);
    words.put(1, "one");
    words.put(2, "two");
    EXPECT_EQ(under(words, 1), "one");
    EXPECT_EQ(under(words, 2), "two");
}

TEST(RecentlyUsed, WhatWasPutLongestAgoGoesFirst) {
    Words words(2);
    words.put(1, "one");
    words.put(2, "two");
    words.put(3, "three");
    EXPECT_EQ(under(words, 1), "nothing");
    EXPECT_EQ(under(words, 2), "two");
    EXPECT_EQ(under(words, 3), "three");
}

TEST(RecentlyUsed, WhatWasLookedForStaysLonger) {
    Words words(2);
    words.put(1, "one");
    words.put(2, "two");
    static_cast<void>(words.find(1));
    words.put(3, "three");
    EXPECT_EQ(under(words, 1), "one");
    EXPECT_EQ(under(words, 2), "nothing");
}

TEST(RecentlyUsed, ANewValueTakesTheOldOnesPlaceAndNobodyElses) {
    Words words(2);
    words.put(1, "one");
    words.put(2, "two");
    words.put(1, "uno");
    EXPECT_EQ(under(words, 1), "uno");
    EXPECT_EQ(under(words, 2), "two");
    words.put(2, "due");
    words.put(3, "tre");
    EXPECT_EQ(under(words, 1), "nothing");
}

TEST(RecentlyUsed, WhatIsErasedIsGoneAndLeavesRoom) {
    Words words(2);
    words.put(1, "one");
    words.put(2, "two");
    words.erase(1);
    words.erase(9);
    words.put(3, "three");
    EXPECT_EQ(under(words, 1), "nothing");
    EXPECT_EQ(under(words, 2), "two");
    EXPECT_EQ(under(words, 3), "three");
}

} // namespace
} // namespace vasker
