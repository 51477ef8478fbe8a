#include "platform/ui/text/TextSelection.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace vasker {
namespace {

const QString text = QStringLiteral("one two\nthree e\u0301 four");

std::optional<TextSelection>
after(TextSelection selection, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    return selection.after(QKeyEvent(QEvent::KeyPress, key, modifiers), text);
}

TEST(TextSelection, HoldsTheTextBetweenItsEnds) {
    EXPECT_EQ((TextSelection{4, 7}.of(text)), QStringLiteral("two"));
    EXPECT_EQ((TextSelection{7, 4}.of(text)), QStringLiteral("two"));
    EXPECT_EQ((TextSelection{4, 4}.of(text)), QString());
}

TEST(TextSelection, AKeySelectsAll) {
    EXPECT_EQ(after({3, 4}, Qt::Key_A, Qt::ControlModifier), (TextSelection{0, text.size()}));
}

TEST(TextSelection, GrowsByWholeCharacters) {
    EXPECT_EQ(after({14, 14}, Qt::Key_Right, Qt::ShiftModifier), (TextSelection{14, 16}));
    EXPECT_EQ(after({16, 16}, Qt::Key_Left, Qt::ShiftModifier), (TextSelection{16, 14}));
}

TEST(TextSelection, GrowsByWords) {
    const auto both = Qt::ShiftModifier | Qt::ControlModifier;
    EXPECT_EQ(after({0, 0}, Qt::Key_Right, both), (TextSelection{0, 4}));
    EXPECT_EQ(after({7, 7}, Qt::Key_Left, both), (TextSelection{7, 4}));
}

TEST(TextSelection, GrowsToTheEndsOfItsParagraphAndOfTheText) {
    EXPECT_EQ(after({5, 5}, Qt::Key_Home, Qt::ShiftModifier), (TextSelection{5, 0}));
    EXPECT_EQ(after({5, 5}, Qt::Key_End, Qt::ShiftModifier), (TextSelection{5, 7}));
    EXPECT_EQ(after({10, 10}, Qt::Key_Home, Qt::ShiftModifier), (TextSelection{10, 8}));
    const auto both = Qt::ShiftModifier | Qt::ControlModifier;
    EXPECT_EQ(after({10, 10}, Qt::Key_Home, both), (TextSelection{10, 0}));
    EXPECT_EQ(after({10, 10}, Qt::Key_End, both), (TextSelection{10, text.size()}));
}

TEST(TextSelection, StaysWithinTheText) {
    EXPECT_EQ(after({0, 0}, Qt::Key_Left, Qt::ShiftModifier), (TextSelection{0, 0}));
    const TextSelection end{text.size(), text.size()};
    EXPECT_EQ(after(end, Qt::Key_Right, Qt::ShiftModifier), end);
    EXPECT_EQ(after(end, Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier), end);
}

TEST(TextSelection, OtherKeysAreLeftToOthers) {
    EXPECT_EQ(after({0, 0}, Qt::Key_Down, Qt::NoModifier), std::nullopt);
    EXPECT_EQ(after({0, 0}, Qt::Key_X, Qt::NoModifier), std::nullopt);
}

TEST(TextSelection, FindsTheWordAtAPlace) {
    EXPECT_EQ(TextSelection::wordAt(text, 5).of(text), QStringLiteral("two"));
    EXPECT_EQ(TextSelection::wordAt(text, 4).of(text), QStringLiteral("two"));
    EXPECT_EQ(TextSelection::wordAt(text, text.size()).of(text), QString());
    EXPECT_EQ(TextSelection::wordAt({}, 0).of({}), QString());
}

TEST(TextSelection, AWordLongerThanWhatIsLookedAtIsTakenInParts) {
    const QString word(10'000, u'x');
    const TextSelection found = TextSelection::wordAt(word, 5000);
    EXPECT_LE(found.from(), 5000);
    EXPECT_GT(found.to(), 5000);
}

} // namespace
} // namespace vasker
