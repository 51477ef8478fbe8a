#include "data/text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <thread>

namespace vasker {
namespace {

const TextLocale english("en_CA");
const TextLocale turkish("tr_TR");
const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467"; // three people, joined
const std::string flagOfCanada = "\U0001F1E8\U0001F1E6";

std::size_t countOf(std::string_view text) {
    return characterCount(text, 1'000);
}

bool contains(std::string_view text, std::string_view query, const TextLocale& locale = english) {
    return containsFolded(folded(text, locale), folded(query, locale));
}

std::vector<std::string> inNameOrder(std::vector<std::string> names, const char* locale = "en_CA") {
    const NameOrder order{TextLocale(locale)};
    std::ranges::stable_sort(names,
                             [&](const auto& a, const auto& b) { return order.precedes(a, b); });
    return names;
}

using Names = std::vector<std::string>;

// Locales.

TEST(TextLocale, EncodingAndModifierAreCut) {
    EXPECT_EQ(TextLocale("fr_CA.UTF-8").id(), "fr_CA");
    EXPECT_EQ(TextLocale("de_DE@euro").id(), "de_DE");
    EXPECT_EQ(TextLocale("de_DE.ISO-8859-15@euro").id(), "de_DE");
}

TEST(TextLocale, TheLocaleOfTheCLibraryMeansEnglish) {
    for (const std::string_view id : {"", "C", "POSIX", "C.UTF-8", ".UTF-8"}) {
        EXPECT_EQ(TextLocale(id).id(), "en") << id;
    }
}

TEST(TextLocale, TurkishAndAzerbaijaniHaveADotlessI) {
    EXPECT_TRUE(TextLocale("tr").hasDotlessI());
    EXPECT_TRUE(TextLocale("tr_TR.UTF-8").hasDotlessI());
    EXPECT_TRUE(TextLocale("az_Latn_AZ").hasDotlessI());
    EXPECT_FALSE(TextLocale("en").hasDotlessI());
    EXPECT_FALSE(TextLocale("trv_TW").hasDotlessI());
}

class Environment : public testing::Test {
  protected:
    Environment() {
        for (const auto* variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
            const char* value = std::getenv(variable);
            m_saved.emplace_back(variable, value == nullptr ? std::string() : value);
            unsetenv(variable);
        }
    }
    ~Environment() override {
        for (const auto& [variable, value] : m_saved) {
            if (value.empty()) {
                unsetenv(variable.c_str());
            } else {
                setenv(variable.c_str(), value.c_str(), 1);
            }
        }
    }

  private:
    std::vector<std::pair<std::string, std::string>> m_saved;
};

using TextLocaleOfTheEnvironment = Environment;

TEST_F(TextLocaleOfTheEnvironment, IsTheFirstVariableThatIsSetAndNotEmpty) {
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "en");
    setenv("LANG", "fr_CA.UTF-8", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "fr_CA");
    setenv("LC_COLLATE", "de_DE", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "de_DE");
    setenv("LC_ALL", "", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "de_DE");
    setenv("LC_ALL", "C", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "en");
}

// Characters.

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

// Letter case.

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
    std::string text = "@AZ[`az{09 ~\x7F";
    const std::string expected = "@az[`az{09 ~\x7F";
    for (std::size_t blanks = 0; blanks < 20; ++blanks) {
        EXPECT_EQ(folded(std::string(blanks, ' ') + text, english),
                  std::string(blanks, ' ') + expected);
    }
}

/// Folding letter by letter must not show where texts of simple letters take a shorter way: an
/// unusual letter behind the text sends it the long one.
TEST(Folding, TheShortWayGivesWhatTheLongOneGives) {
    const std::string unusual = "\u4E00";
    std::mt19937 random(3);
    std::uniform_int_distribution<int> codePoint(1, 0x20FF);
    const auto utf8 = [](int each) {
        std::string text;
        if (each < 0x80) {
            text += static_cast<char>(each);
        } else if (each < 0x800) {
            text += static_cast<char>(0xC0 | (each >> 6));
            text += static_cast<char>(0x80 | (each & 0x3F));
        } else {
            text += static_cast<char>(0xE0 | (each >> 12));
            text += static_cast<char>(0x80 | ((each >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (each & 0x3F));
        }
        return text;
    };
    for (const TextLocale& locale : {english, turkish}) {
        for (int round = 0; round < 20'000; ++round) {
            const int first = round < 0x20FF ? round + 1 : codePoint(random);
            const std::string text = utf8(first) + utf8(codePoint(random));
            ASSERT_EQ(folded(text, locale) + unusual, folded(text + unusual, locale)) << first;
        }
    }
}

// The order of names.

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
                         family};
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

// Capitals and code points.

TEST(Capitalized, EveryWordBeginsWithACapitalAndGoesOnInSmallLetters) {
    EXPECT_EQ(capitalized("compressor_station"), "Compressor_station");
    EXPECT_EQ(capitalized("LNG"), "Lng");
    EXPECT_EQ(capitalized("gas plant\tNORTH"), "Gas Plant\tNorth");
    EXPECT_EQ(capitalized("o'brien-SMITH 2nd"), "O'brien-smith 2nd");
    EXPECT_EQ(capitalized("\u00E9TAPE"), "\u00C9tape");
}

TEST(Capitalized, WhitespaceStaysAsItIs) {
    EXPECT_EQ(capitalized(""), "");
    EXPECT_EQ(capitalized("  a\u00A0b\u3000c \n"), "  A\u00A0B\u3000C \n");
}

TEST(Capitalized, LettersMayGrow) {
    EXPECT_EQ(capitalized("\u00DFA"), "Ssa");
    EXPECT_EQ(capitalized("\uFB03"), "Ffi");
    EXPECT_EQ(capitalized("\u01C6"), "\u01C5"); // a title-case letter
}

TEST(CodePointOrder, CapitalsComeBeforeSmallLetters) {
    EXPECT_TRUE(precedesInCodePointOrder("Zebra", "apple"));
    EXPECT_TRUE(precedesInCodePointOrder("Plant 10", "Plant 2"));
    EXPECT_TRUE(precedesInCodePointOrder("", "a"));
    EXPECT_FALSE(precedesInCodePointOrder("a", "a"));
}

TEST(CodePointOrder, ComposedFormsAreCompared) {
    EXPECT_FALSE(precedesInCodePointOrder("\u00E9", "e\u0301"));
    EXPECT_FALSE(precedesInCodePointOrder("e\u0301", "\u00E9"));
    EXPECT_TRUE(precedesInCodePointOrder("f", "e\u0301"));
    EXPECT_TRUE(precedesInCodePointOrder("\uFF41", "\U0001F600")); // not the order of UTF-16
}

TEST(Text, IsTheSameOnEveryThread) {
    std::size_t count = 0;
    std::string result;
    std::thread([&] {
        count = countOf(family + "e\u0301");
        result = folded("\u00C9", english);
    }).join();
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(result, "\u00E9");
}

} // namespace
} // namespace vasker
