#include "platform/ui/TypeAhead.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(TypeAhead, FindsWhatBeginsWithAllThatWasTypedSoonAfterOneAnother) {
    TypeAhead search;
    EXPECT_TRUE(search.takes(QStringLiteral("s")));
    EXPECT_TRUE(search.takes(QStringLiteral("a")));
    EXPECT_EQ(search.typed(), QStringLiteral("sa"));
    EXPECT_TRUE(search.begins(QStringLiteral("Saskatoon")));
    EXPECT_FALSE(search.begins(QStringLiteral("Seba Beach")));
    EXPECT_FALSE(search.begins(QStringLiteral("Old Saskatoon")));
}

TEST(TypeAhead, LeavesAccentsAndCapitalsAside) {
    TypeAhead search;
    search.takes(QStringLiteral("E"));
    EXPECT_TRUE(search.begins(QStringLiteral("\u00c9toile")));
    EXPECT_TRUE(search.begins(QStringLiteral("e\u0301toile")));
    search.takes(QStringLiteral("\u0162"));
    EXPECT_TRUE(search.begins(QStringLiteral("etoile")));
}

TEST(TypeAhead, TakesASpaceOnlyAfterALetter) {
    TypeAhead search;
    EXPECT_FALSE(search.takes(QStringLiteral(" ")));
    search.takes(QStringLiteral("a"));
    EXPECT_TRUE(search.takes(QStringLiteral(" ")));
    EXPECT_TRUE(search.begins(QStringLiteral("A b")));
    EXPECT_FALSE(search.begins(QStringLiteral("Ab")));
}

TEST(TypeAhead, TakesNoKeyWithoutALetter) {
    TypeAhead search;
    search.takes(QStringLiteral("a"));
    for (const auto* key : {"", "\t", "\r", "\x1b", "\x7f"}) {
        EXPECT_FALSE(search.takes(QString::fromLatin1(key)));
    }
    EXPECT_EQ(search.typed(), QStringLiteral("a"));
}

TEST(TypeAhead, BeginsAnewAfterAPause) {
    TypeAhead search;
    QSignalSpy changes(&search, &TypeAhead::typedChanged);
    search.takes(QStringLiteral("a"));
    ASSERT_EQ(changes.size(), 1);
    ASSERT_TRUE(changes.wait());
    EXPECT_TRUE(search.typed().isEmpty());
}

TEST(TypeAhead, BeginsAnewWhenItForgets) {
    TypeAhead search;
    search.takes(QStringLiteral("a"));
    search.forget();
    search.takes(QStringLiteral("b"));
    EXPECT_EQ(search.typed(), QStringLiteral("b"));
}

TEST(TypeAhead, ReadsOnlyTheBeginningOfALongText) {
    const QString marks(1'000'000, QChar(0x0301));
    EXPECT_EQ(TypeAhead::compared(QStringLiteral("E") + marks), QStringLiteral("e"));
    EXPECT_EQ(TypeAhead::compared(QString(300, u'a')).size(), 200);
}

} // namespace
} // namespace vasker
