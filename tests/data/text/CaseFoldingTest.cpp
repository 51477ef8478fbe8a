#include "data/text/CaseFolding.h"

#include "data/Cancelled.h"
#include "tests/data/text/SampleTexts.h"

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <random>
#include <string>
#include <thread>
#include <vector>

namespace vasker {
namespace {

const TextLocale turkish("tr_TR");

bool contains(std::string_view text, std::string_view query, const TextLocale& locale = english) {
    return containsFolded(folded(text, locale), folded(query, locale));
}

TEST(Folding, IgnoresLetterCase) {
    EXPECT_TRUE(contains("Alberta", "ALBERTA"));
    EXPECT_TRUE(contains("ALBERTA", "bert"));
    EXPECT_TRUE(contains("MONTR\u00C9AL", "montr\u00E9al"));
    EXPECT_TRUE(contains("\u0391\u0392\u0393", "\u03B1\u03B2\u03B3"));
    EXPECT_TRUE(contains("\u041C\u041E\u0421\u041A\u0412\u0410", "\u043C\u043E\u0441\u043A"));
}

TEST(Folding, KeepsAccents) {
    EXPECT_FALSE(contains("Montr\u00E9al", "montreal"));
    EXPECT_FALSE(contains("Montreal", "montr\u00E9al"));
}

TEST(Folding, KeepsWidth) {
    EXPECT_FALSE(contains("\uFF21lberta", "alberta"));
    EXPECT_TRUE(contains("\uFF21lberta", "\uFF41"));
}

TEST(Folding, CanonicallyEquivalentTextsAreEqual) {
    EXPECT_TRUE(contains("Montr\u00E9al", "MONTRE\u0301AL"));
    EXPECT_TRUE(contains("Montre\u0301al", "MONTR\u00C9AL"));
    EXPECT_TRUE(contains("a\u0323\u0302", "\u1EAD"));
    EXPECT_TRUE(contains("a\u0302\u0323", "A\u0323\u0302"));
    EXPECT_TRUE(contains("\u212B", "\u00E5")); // the sign of the unit and the letter
}

TEST(Folding, ComparesWholeCharacters) {
    EXPECT_FALSE(contains("Montr\u00E9al", "montre"));
    EXPECT_FALSE(contains("Montre\u0301al", "montre"));
    EXPECT_FALSE(contains("x\u0302", "x"));
    EXPECT_FALSE(contains("x\u0302", "\u0302"));
    EXPECT_TRUE(contains("x\u0302x", "x"));
    EXPECT_TRUE(contains("x\u0302x", "X\u0302"));
    EXPECT_FALSE(contains("a\r\nb", "\n"));
    EXPECT_TRUE(contains("a\r\nb", "\r\n"));
}

TEST(Folding, AFamilyIsNotItsMembers) {
    EXPECT_FALSE(contains("Plant " + family, "\U0001F468"));
    EXPECT_FALSE(contains("Plant " + family, "\U0001F467"));
    EXPECT_TRUE(contains("Plant " + family + "!", family));
}

TEST(Folding, FlagsAreFoundAsPairs) {
    const std::string flags = flagOfCanada + flagOfCanada;
    EXPECT_TRUE(contains(flags, flagOfCanada));
    EXPECT_FALSE(
        contains(flags, "\U0001F1E6\U0001F1E8")); // the second half and the next first half
    EXPECT_FALSE(contains(flags, "\U0001F1E8"));
}

TEST(Folding, SharpSIsDoubleS) {
    EXPECT_TRUE(contains("Stra\u00DFe", "STRASSE"));
    EXPECT_TRUE(contains("STRASSE", "stra\u00DFe"));
    EXPECT_TRUE(contains("STRA\u1E9EE", "stra\u00DFe"));
}

TEST(Folding, FinalAndMiddleSigmaAreOneLetter) {
    EXPECT_TRUE(contains("\u039F\u0394\u039F\u03A3", "\u03BF\u03B4\u03BF\u03C2"));
}

TEST(Folding, DottedAndDotlessIAreTwoLettersInTurkish) {
    EXPECT_TRUE(contains("ISPARTA", "\u0131sparta", turkish));
    EXPECT_FALSE(contains("ISPARTA", "isparta", turkish));
    EXPECT_TRUE(contains("\u0130STANBUL", "istanbul", turkish));
    EXPECT_TRUE(contains("I\u0307STANBUL", "istanbul", turkish));
    EXPECT_FALSE(contains("ISTANBUL", "istanbul", turkish));
    EXPECT_TRUE(contains("istanbul", "\u0130STANBUL", turkish));
}

TEST(Folding, ElsewhereIHasNoSpecialFold) {
    EXPECT_TRUE(contains("ISPARTA", "isparta"));
    EXPECT_FALSE(contains("ISPARTA", "\u0131sparta"));
    EXPECT_FALSE(contains("\u0130STANBUL", "istanbul"));
    EXPECT_TRUE(contains("\u0130STANBUL", "i\u0307stanbul"));
}

TEST(Folding, IllFormedBytesAreReplacementCharacters) {
    EXPECT_TRUE(contains("a\uFFFDb", "\xFF"));
    EXPECT_FALSE(contains("ab", "\xFF"));
}

TEST(Folding, AnyLengthOfASCIIIsFolded) {
    const std::string text = "@AZ[`az{09 ~\x7F";
    const std::string expected = "@az[`az{09 ~\x7F";
    for (std::size_t blanks = 0; blanks < 20; ++blanks) {
        EXPECT_EQ(folded(std::string(blanks, ' ') + text, english),
                  std::string(blanks, ' ') + expected);
    }
}

// The definition: Unicode's canonical caseless form, as ICU makes it from the whole text at once.

std::string foldedByDefinition(const std::string& text, bool hasDotlessI) {
    UErrorCode status = U_ZERO_ERROR;
    const auto* const formC = icu::Normalizer2::getNFCInstance(status);
    const auto* const formD = icu::Normalizer2::getNFDInstance(status);
    icu::UnicodeString result =
        (hasDotlessI ? formC : formD)->normalize(icu::UnicodeString::fromUTF8(text), status);
    result.foldCase(hasDotlessI ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT);
    std::string utf8;
    return formC->normalize(result, status).toUTF8String(utf8);
}

void expectAsDefined(const std::string& text) {
    ASSERT_EQ(folded(text, english), foldedByDefinition(text, false)) << text.size();
    ASSERT_EQ(folded(text, turkish), foldedByDefinition(text, true)) << text.size();
}

std::string utf8(UChar32 codePoint) {
    std::string text;
    return icu::UnicodeString(codePoint).toUTF8String(text);
}

/// Code points that fold, compose, decompose or are reordered in unusual ways.
const std::vector<UChar32> unusual = {
    u'\0',        u'I',      u'i',          u'\u0130',     u'\u0131',     u'\u0307',
    u'\u00DF',    u'\u1E9E', u'\u0149',     u'\u01F0',     u'\u0390',     u'\u03B0',
    u'\u0345',    u'\u03B9', u'\u1FB7',     u'\u1F80',     u'\u03A3',     u'\u03C2',
    u'\u0587',    u'\uFB03', u'\u1E96',     u'\u212B',     u'\u2126',     u'\u0301',
    u'\u0316',    u'\u0323', u'\u0344',     u'\u0F73',     u'\u0F71',     u'\u0F81',
    u'\u093C',    u'\u09C7', u'\u09BE',     u'\u1100',     u'\u1161',     u'\u11A8',
    u'\uAC00',    u'\u13A0', u'\uAB70',     u'\u1C89',     u'\uFB1D',     u'\u2ADC',
    u'\uFFFD',    u'\u200D', U'\U00010400', U'\U0001D15E', U'\U0001D165', U'\U00011099',
    U'\U000110BA'};

TEST(Folding, OfEachCodePointIsAsDefined) {
    std::string text;
    for (UChar32 each = 0; each <= 0x10FFFF; ++each) {
        if (each < 0xD800 || each > 0xDFFF) { // no surrogates
            text += utf8(each);
        }
        if (each % 0x40 == 0x3F) {
            ASSERT_NO_FATAL_FAILURE(expectAsDefined(text)) << each;
            text.clear();
        } else {
            text += ' ';
        }
    }
}

TEST(Folding, OfTextsOfSimpleLettersIsAsDefined) {
    std::mt19937 random(3);
    std::uniform_int_distribution<UChar32> codePoint(1, 0x20FF);
    for (int round = 0; round < 20'000; ++round) {
        ASSERT_NO_FATAL_FAILURE(expectAsDefined(utf8(codePoint(random)) + utf8(codePoint(random))));
    }
}

TEST(Folding, OfUnusualTextsIsAsDefined) {
    std::mt19937 random(5);
    const auto below = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    for (int round = 0; round < 20'000; ++round) {
        std::string text;
        for (std::size_t left = below(round % 100 == 0 ? 500 : 12); left > 0; --left) {
            text += utf8(unusual[below(unusual.size())]);
        }
        ASSERT_NO_FATAL_FAILURE(expectAsDefined(text));
        ASSERT_EQ(folded(folded(text, english), english), folded(text, english));
    }
}

/// A long text is folded in pieces of some 16 KiB, which must not show.
TEST(Folding, OfLongTextsIsAsDefined) {
    std::mt19937 random(7);
    const auto below = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    for (int round = 0; round < 300; ++round) {
        const UChar32 filling = below(3) == 0 ? u'a' : unusual[below(unusual.size())];
        const std::string character = utf8(filling);
        std::string text = repeated(character, 16'380 / character.size());
        for (int each = 0; each < 40; ++each) {
            text += below(3) == 0 ? std::string("a") : utf8(unusual[below(unusual.size())]);
        }
        if (filling < 0x300) { // the definition is quadratic for marks
            text += repeated("Plant ", 3'000);
        }
        ASSERT_NO_FATAL_FAILURE(expectAsDefined(text));
    }
}

TEST(Folding, OfIllFormedBytesIsAsDefined) {
    std::mt19937 random(9);
    for (int round = 0; round < 20'000; ++round) {
        std::string text;
        for (auto left = random() % 12; left > 0; --left) {
            text += static_cast<char>(random() % 2 == 0 ? 0x80 + random() % 0x80 : random());
        }
        ASSERT_NO_FATAL_FAILURE(expectAsDefined(text));
    }
}

TEST(Folding, OfAMillionMarksEnds) {
    // Sorted into their places one by one, these would take hours.
    for (const std::string_view marks : {"\u0301\u0316", "\u0F73", "\u0345\u0301"}) {
        EXPECT_GE(folded("x" + repeated(marks, 500'000), english).size(), 1'000'000U);
        EXPECT_GE(folded("x" + repeated(marks, 500'000), turkish).size(), 1'000'000U);
    }
}

TEST(Folding, EndsWhenAStopIsRequested) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(static_cast<void>(folded("text", english, stop.get_token())), Cancelled);
}

TEST(Folding, IsTheSameOnEveryThread) {
    std::string result;
    std::thread([&] { result = folded("\u00C9 e\u0332", english); }).join();
    EXPECT_EQ(result, "\u00E9 e\u0332");
}

} // namespace
} // namespace vasker
