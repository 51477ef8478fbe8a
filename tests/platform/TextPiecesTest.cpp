#include "platform/ui/text/TextPieces.h"

#include <QString>

#include <gtest/gtest.h>

namespace vasker {
namespace {

using Pieces = std::vector<TextPiece>;

QString repeated(const QString& part, qsizetype times) {
    return part.repeated(times);
}

/// The pieces and the breaks between them are all of `text`, in order.
void expectWhole(const QString& text) {
    qsizetype end = 0;
    bool isFirst = true;
    for (const TextPiece& piece : cutIntoPieces(text)) {
        if (!isFirst && piece.start != end) {
            ASSERT_EQ(piece.start, end + 1);
            ASSERT_TRUE(QStringLiteral("\n\r\u2028\u2029").contains(text[end]));
        }
        ASSERT_LE(piece.length, mostPieceUnits);
        end = piece.start + piece.length;
        isFirst = false;
    }
    EXPECT_EQ(end, text.size());
}

TEST(TextPieces, AShortTextIsOnePiece) {
    EXPECT_EQ(cutIntoPieces(u"12.5 t"), (Pieces{{0, 6}}));
    EXPECT_FALSE(isLongText(u"12.5 t"));
}

TEST(TextPieces, NoTextIsOneEmptyPiece) {
    EXPECT_EQ(cutIntoPieces({}), (Pieces{{0, 0}}));
    EXPECT_FALSE(isLongText({}));
}

TEST(TextPieces, ATextOfExactlyOnePieceIsNotCut) {
    const QString text(mostPieceUnits, u'x');
    EXPECT_EQ(cutIntoPieces(text), (Pieces{{0, mostPieceUnits}}));
    EXPECT_FALSE(isLongText(text));
    EXPECT_TRUE(isLongText(text + u'x'));
}

TEST(TextPieces, LinesStayWhole) {
    const QString text = QString(700, u'a') + u'\n' + QString(700, u'b');
    EXPECT_EQ(cutIntoPieces(text), (Pieces{{0, 700}, {701, 700}}));
}

TEST(TextPieces, APieceHoldsABoundedNumberOfLines) {
    const QString text = repeated(QStringLiteral("\n"), 100);
    EXPECT_EQ(cutIntoPieces(text), (Pieces{{0, 39}, {40, 39}, {80, 20}}));
    expectWhole(text);
    EXPECT_TRUE(isLongText(text));
}

TEST(TextPieces, ALineBreakAtTheEndIsFollowedByAnEmptyLine) {
    const QString text = repeated(QStringLiteral("\n"), mostPieceLines);
    EXPECT_EQ(cutIntoPieces(text), (Pieces{{0, mostPieceLines - 1}, {mostPieceLines, 0}}));
}

TEST(TextPieces, EveryKindOfLineBreakEndsAPiece) {
    for (const QChar kind : {QChar(u'\n'), QChar(u'\r'), QChar(0x2028), QChar(0x2029)}) {
        const QString text = QString(1000, u'a') + kind + QString(1000, u'b');
        EXPECT_EQ(cutIntoPieces(text), (Pieces{{0, 1000}, {1001, 1000}})) << int{kind.unicode()};
    }
}

TEST(TextPieces, WordsStayWhole) {
    const QString text = repeated(QStringLiteral("eleven char "), 1000);
    for (const TextPiece& piece : cutIntoPieces(text)) {
        EXPECT_EQ(piece.start % 12 == 0 || text[piece.start - 1] == u' ', true) << piece.start;
    }
    expectWhole(text);
}

TEST(TextPieces, CharactersStayWholeWhereThereIsNoBlank) {
    const QString letter = QStringLiteral("e\u0301\u0302"); // three code units, one character
    const QString text = repeated(letter, 10'000);
    for (const TextPiece& piece : cutIntoPieces(text)) {
        EXPECT_EQ(piece.start % 3, 0);
    }
    expectWhole(text);
}

TEST(TextPieces, OneCharacterLongerThanAPieceIsCut) {
    expectWhole(u'e' + repeated(QStringLiteral("\u0301"), 5000));
}

TEST(TextPieces, NoSurrogatePairIsCut) {
    const QString variation = QString::fromUcs4(U"\U000E0100", 1); // extends the character before
    const QString text = u'e' + repeated(variation, 5000);
    for (const TextPiece& piece : cutIntoPieces(text)) {
        EXPECT_FALSE(text[piece.start].isLowSurrogate());
    }
    expectWhole(text);
}

TEST(TextPieces, TextsFromRightToLeftAreCutAsAnyOther) {
    expectWhole(repeated(QStringLiteral("\u05E9\u05DC\u05D5\u05DD "), 2000));
}

} // namespace
} // namespace vasker
