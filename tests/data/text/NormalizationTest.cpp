#include "data/text/Normalization.h"

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <random>
#include <vector>

namespace vasker {
namespace {

icu::UnicodeString composedByICU(const icu::UnicodeString& text) {
    UErrorCode status = U_ZERO_ERROR;
    return icu::Normalizer2::getNFCInstance(status)->normalize(text, status);
}

icu::UnicodeString decomposedByICU(const icu::UnicodeString& text) {
    UErrorCode status = U_ZERO_ERROR;
    return icu::Normalizer2::getNFDInstance(status)->normalize(text, status);
}

icu::UnicodeString repeated(const icu::UnicodeString& text, int count) {
    icu::UnicodeString result;
    for (int each = 0; each < count; ++each) {
        result += text;
    }
    return result;
}

/// Marks of many combining classes, marks that decompose, and letters that compose with some.
std::vector<UChar32> drawnCodePoints() {
    std::vector<UChar32> drawn = {
        u'a', u'e', u'\u00E9', u'\u1EAD', u'\u1100', u'\u1161', U'\U0001D15F'};
    for (UChar32 each = 0x300; each <= 0x10FFFF; ++each) {
        if (u_getIntPropertyValue(each, UCHAR_LEAD_CANONICAL_COMBINING_CLASS) != 0) {
            drawn.push_back(each);
        }
    }
    return drawn;
}

TEST(Normalization, TextsWithLongRunsOfMarksHaveTheNormalFormsOfUnicode) {
    const std::vector<UChar32> codePoints = drawnCodePoints();
    std::mt19937 random(11);
    const auto below = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    for (int round = 0; round < 2'000; ++round) {
        icu::UnicodeString text;
        const std::size_t kinds = 1 + below(5);
        std::vector<UChar32> used;
        for (std::size_t each = 0; each < kinds; ++each) {
            used.push_back(codePoints[below(codePoints.size())]);
        }
        for (std::size_t left = below(400); left > 0; --left) {
            text += below(40) == 0 ? codePoints[below(codePoints.size())] : used[below(kinds)];
        }
        const icu::UnicodeString ordered = withOrderedMarks(text);
        ASSERT_TRUE(composed(ordered) == composedByICU(text)) << round;
        ASSERT_TRUE(decomposed(ordered) == decomposedByICU(text)) << round;
    }
}

TEST(Normalization, EveryMarkIsOrderedByTheCombiningClassesOfItsParts) {
    for (UChar32 each = 0; each <= 0x10FFFF; ++each) {
        if (u_getIntPropertyValue(each, UCHAR_LEAD_CANONICAL_COMBINING_CLASS) != 0) {
            const icu::UnicodeString text = u"a" + repeated(icu::UnicodeString(each), 65) +
                                            repeated(u"\u0334", 65) + repeated(u"\u0316", 65) +
                                            repeated(icu::UnicodeString(each), 65);
            EXPECT_TRUE(decomposed(withOrderedMarks(text)) == decomposedByICU(text)) << each;
        }
    }
}

TEST(Normalization, ShortRunsHaveAtMostThirtyMarks) {
    const icu::UnicodeString thirty = repeated(u"\u0301", 30);
    EXPECT_TRUE(withShortRuns(u"a" + thirty + u"b" + thirty) == u"a" + thirty + u"b" + thirty);
    EXPECT_TRUE(withShortRuns(u"a" + thirty + u"\u0316b" + thirty + u"\u0301") ==
                u"a" + thirty + u"b" + thirty);
}

TEST(Normalization, LongRunsOfMarksThatAreOrderedStayAsTheyAre) {
    const icu::UnicodeString text = u"a" + repeated(u"\u0316", 100) + repeated(u"\u0344", 100);
    EXPECT_TRUE(withOrderedMarks(text) == text);
}

TEST(Normalization, ShortRunsOfMarksStayAsTheyAre) {
    const icu::UnicodeString text = repeated(u"\u0301\u0316", 32);
    EXPECT_TRUE(withOrderedMarks(text) == text);
    EXPECT_TRUE(withOrderedMarks(u"a" + text + u"b" + text) == u"a" + text + u"b" + text);
}

TEST(Normalization, LongRunsOfMarksAreOrderedByTheirCombiningClass) {
    EXPECT_TRUE(withOrderedMarks(u"a" + repeated(u"\u0301\u0316", 33) + u"b") ==
                u"a" + repeated(u"\u0316", 33) + repeated(u"\u0301", 33) + u"b");
    EXPECT_TRUE(withOrderedMarks(repeated(u"\u0F73", 65)) ==
                repeated(u"\u0F71", 65) + repeated(u"\u0F72", 65));
}

TEST(Normalization, MillionsOfMarksAreComposed) {
    // One by one sorted into their places, these would take hours.
    for (const char16_t* const marks : {u"\u0301\u0316", u"\u0F73", u"\u0301\u0F71\u0F72\u0334"}) {
        const icu::UnicodeString text = repeated(marks, 1'000'000);
        EXPECT_GE(composed(withOrderedMarks(text)).length(), 1'000'000);
    }
}

TEST(Normalization, ATextIsComposedPieceByPieceWhereABoundaryIs) {
    for (const UChar32 each : {u'a', u'\u00E9', u'\u4E00', u'\uAC00', u'\u1100'}) {
        EXPECT_TRUE(hasCompositionBoundaryBefore(each)) << each;
    }
    for (const UChar32 each : {u'\u0301', u'\u1161', u'\u0F73', u'\u09BE'}) {
        EXPECT_FALSE(hasCompositionBoundaryBefore(each)) << each;
    }
}

} // namespace
} // namespace vasker
