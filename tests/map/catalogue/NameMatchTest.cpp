#include "map/catalogue/NameMatch.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

// The name with the matched part between brackets; without any where nothing matched.
std::string marked(const char* name, const char* query, const char* locale = "en") {
    QString text = QString::fromUtf8(name);
    const TextLocale where(locale);
    if (const auto part = matchedPart(text, folded(query, where), where)) {
        text.insert(part->end, u']');
        text.insert(part->begin, u'[');
    }
    return text.toStdString();
}

TEST(NameMatch, TheFirstPlaceIsMarkedWhateverItsCase) {
    EXPECT_EQ(marked("Gas plant gas", "GAS"), "[Gas] plant gas");
    EXPECT_EQ(marked("Alberta Gas", "gas"), "Alberta [Gas]");
    EXPECT_EQ(marked("Alberta Gas", "alberta gas"), "[Alberta Gas]");
}

TEST(NameMatch, NothingIsMarkedWithoutAMatch) {
    EXPECT_EQ(marked("Alberta", ""), "Alberta");
    EXPECT_EQ(marked("Alberta", "gas"), "Alberta");
    EXPECT_EQ(marked("", "gas"), "");
}

TEST(NameMatch, AccentsCountAndAreNeverCutOff) {
    EXPECT_EQ(marked("Montréal", "montreal"), "Montréal");
    EXPECT_EQ(marked("Montréal", "montré"), "[Montré]al");
    EXPECT_EQ(marked("Montre\u0301al", "MONTRÉ"), "[Montre\u0301]al");
    EXPECT_EQ(marked("Montre\u0301al", "montre"), "Montre\u0301al");
}

TEST(NameMatch, ACharacterThatFoldsToSeveralIsMarkedWhole) {
    EXPECT_EQ(marked("Straße 5", "strasse"), "[Straße] 5");
    EXPECT_EQ(marked("Straße 5", "SS"), "Stra[ß]e 5");
}

TEST(NameMatch, AMatchIsMarkedWhereverItStandsInALongText) {
    for (const std::size_t before : {0U, 255U, 256U, 257U, 509U, 512U, 1'000U, 9'000U}) {
        for (const std::size_t after : {0U, 1U, 700U}) {
            const std::string lead(before, 'x');
            const std::string tail(after, 'x');
            EXPECT_EQ(marked((lead + "GAS" + tail + "gas").c_str(), "gas"),
                      lead + "[GAS]" + tail + "gas");
        }
    }
    const std::string query(600, 'a');
    EXPECT_EQ(marked((std::string(300, 'x') + query).c_str(), query.c_str()),
              std::string(300, 'x') + '[' + query + ']');
}

TEST(NameMatch, TurkishLettersMatchAsTurkishReadersExpect) {
    EXPECT_EQ(marked("DIŞ İş", "iş", "tr"), "DIŞ [İş]");
}

TEST(NameMatch, EmojiAreWholeCharacters) {
    EXPECT_EQ(marked("a👩‍🔧b", "👩‍🔧"), "a[👩‍🔧]b");
}

TEST(NameMatch, MarkupInANameIsShownLiterally) {
    const QString name = QStringLiteral("<i>A</i> & \"B\"  C\nD");
    EXPECT_EQ(nameMarkup(name, {3, 4}),
              QStringLiteral("&lt;i&gt;<b>A</b>&lt;/i&gt; &amp; &quot;B&quot; &nbsp;C<br>D"));
}

} // namespace
} // namespace vasker
