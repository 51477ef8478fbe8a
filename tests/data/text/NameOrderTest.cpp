#include "data/text/NameOrder.h"

#include "tests/data/text/SampleTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace vasker {
namespace {

using Names = std::vector<std::string>;

Names inNameOrder(Names names, const char* locale = "en_CA") {
    const NameOrder order{TextLocale(locale)};
    std::ranges::stable_sort(names,
                             [&](const auto& a, const auto& b) { return order.precedes(a, b); });
    return names;
}

TEST(NameOrder, DigitsAreOrderedByTheirValue) {
    EXPECT_EQ(inNameOrder({"Plant 10", "Plant 9", "Plant 100", "Plant 2"}),
              (Names{"Plant 2", "Plant 9", "Plant 10", "Plant 100"}));
}

TEST(NameOrder, CaseAndWidthDecideLast) {
    EXPECT_EQ(inNameOrder({"b", "B", "a", "A", "\uFF41"}), (Names{"a", "\uFF41", "A", "b", "B"}));
    EXPECT_EQ(inNameOrder({"Gas b", "gas a", "GAS c"}), (Names{"gas a", "Gas b", "GAS c"}));
}

TEST(NameOrder, FollowsTheLocale) {
    EXPECT_EQ(inNameOrder({"zebra", "\u00F6l", "orange"}, "de_DE"),
              (Names{"\u00F6l", "orange", "zebra"}));
    EXPECT_EQ(inNameOrder({"\u00F6l", "zebra", "orange"}, "sv_SE"),
              (Names{"orange", "zebra", "\u00F6l"}));
}

TEST(NameOrder, AccentsAreComparedFromTheEndInCanadianFrench) {
    const Names names = {"cot\u00E9", "cote", "c\u00F4t\u00E9", "c\u00F4te"};
    EXPECT_EQ(inNameOrder(names, "fr_CA"),
              (Names{"cote", "c\u00F4te", "cot\u00E9", "c\u00F4t\u00E9"}));
    EXPECT_EQ(inNameOrder(names, "en_CA"),
              (Names{"cote", "cot\u00E9", "c\u00F4te", "c\u00F4t\u00E9"}));
}

TEST(NameOrder, AnUnknownLocaleHasTheRootOrder) {
    EXPECT_EQ(inNameOrder({"b2", "b10", "a"}, "xx_YY"), (Names{"a", "b2", "b10"}));
}

TEST(NameOrder, EqualNamesPrecedeEachOtherInNoOrder) {
    const NameOrder order(english);
    EXPECT_FALSE(order.precedes("Plant 1", "Plant 01"));
    EXPECT_FALSE(order.precedes("Plant 01", "Plant 1"));
    EXPECT_FALSE(order.precedes("\u00E9", "e\u0301"));
    EXPECT_FALSE(order.precedes("e\u0301", "\u00E9"));
}

TEST(NameOrder, SortKeysOrderAsNamesDo) {
    const Names names = {"",
                         "a",
                         "A",
                         "\u00E9",
                         "e\u0301",
                         "e",
                         "Plant 2",
                         "Plant 10",
                         "plant 2",
                         "\uFF50lant 2",
                         "\xFF",
                         "\uFFFD",
                         "Plant 02",
                         std::string(3'000, 'z'),
                         "\U0001F468\u200D\U0001F469"};
    for (const char* const locale : {"en_CA", "fr_CA", "tr_TR", "sv_SE", "ja_JP"}) {
        const NameOrder order{TextLocale(locale)};
        for (const std::string& a : names) {
            for (const std::string& b : names) {
                EXPECT_EQ(order.precedes(a, b), order.sortKey(a) < order.sortKey(b))
                    << a << " " << b;
            }
        }
    }
}

TEST(NameOrder, SortKeysOfLongRunsOfMarksOrderAsNamesDo) {
    std::mt19937 random(13);
    const Names pieces = {
        "a", "e", "\u00E9", "\u0301", "\u0316", "\u0323", "\u0F73", "\u0F71", "9"};
    for (const char* const locale :
         {"en_CA", "vi_VN", "th_TH", "hi_IN"}) { // ICU normalizes in three
        const NameOrder order{TextLocale(locale)};
        const auto drawn = [&] {
            std::string name = "a";
            const std::string& repeatedPiece = pieces[random() % pieces.size()];
            for (auto left = random() % 150; left > 0; --left) {
                name += random() % 3 == 0 ? pieces[random() % pieces.size()] : repeatedPiece;
            }
            return name;
        };
        for (int round = 0; round < 2'000; ++round) {
            const std::string a = drawn();
            const std::string b = drawn();
            ASSERT_EQ(order.precedes(a, b), order.sortKey(a) < order.sortKey(b)) << locale;
        }
    }
}

TEST(NameOrder, TheSortKeyOfAMillionMarksIsMade) {
    // Sorted into their places one by one, these would take an hour.
    std::string name = "x";
    for (int each = 0; each < 500'000; ++each) {
        name += "\u0301\u0316";
    }
    for (const char* const locale : {"en_CA", "vi_VN"}) {
        EXPECT_FALSE(NameOrder(TextLocale(locale)).sortKey(name).empty());
    }
}

TEST(NameOrder, MarksThatFollowThirtyOthersDoNotMatter) {
    const NameOrder order(english);
    std::string name = "x";
    for (int each = 0; each < 30; ++each) {
        name += "\u0301";
    }
    EXPECT_EQ(order.sortKey(name + "y"), order.sortKey(name + "\u0301\u0316y"));
    EXPECT_NE(order.sortKey(name), order.sortKey(name + "y"));
}

TEST(NameOrder, ALongRunOfDigitsHasASortKey) {
    const NameOrder order(english);
    const std::string nines(1'000'000, '9');
    EXPECT_TRUE(order.sortKey("1" + nines) < order.sortKey("2" + nines));
    EXPECT_TRUE(order.sortKey("Plant " + std::string(200, '9')) <
                order.sortKey("Plant 1" + std::string(200, '0')));
}

} // namespace
} // namespace vasker
