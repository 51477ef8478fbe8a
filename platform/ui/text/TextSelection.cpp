#include "platform/ui/text/TextSelection.h"

#include <QKeyEvent>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace vasker {

namespace {

/// How much of a text around a position is looked at: longer words are taken in parts.
constexpr qsizetype reach = 1024;

/// The nearest boundary behind `position`, or before it.
qsizetype boundary(const QString& text,
                   qsizetype position,
                   QTextBoundaryFinder::BoundaryType type,
                   bool forward) {
    const qsizetype first = std::max<qsizetype>(0, position - reach);
    const QString near = text.mid(first, 2 * reach);
    QTextBoundaryFinder finder(type, near);
    finder.setPosition(position - first);
    while (true) {
        const qsizetype found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
        if (found < 0) {
            return forward ? std::min(text.size(), first + near.size()) : first;
        }
        const bool isStop = type != QTextBoundaryFinder::Word ||
                            (finder.boundaryReasons() & QTextBoundaryFinder::StartOfItem) != 0 ||
                            found == 0 || found == near.size();
        if (isStop) {
            return first + found;
        }
    }
}

qsizetype paragraphStart(const QString& text, qsizetype position) {
    return position == 0 ? 0 : text.lastIndexOf(u'\n', position - 1) + 1;
}

qsizetype paragraphEnd(const QString& text, qsizetype position) {
    const qsizetype found = text.indexOf(u'\n', position);
    return found < 0 ? text.size() : found;
}

} // namespace

TextSelection TextSelection::wordAt(const QString& text, qsizetype position) {
    const qsizetype first = std::max<qsizetype>(0, position - reach);
    const QString near = text.mid(first, 2 * reach);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, near);
    finder.setPosition(position - first);
    TextSelection word{position, position};
    if (!finder.isAtBoundary()) {
        word.anchor = first + std::max<qsizetype>(0, finder.toPreviousBoundary());
        finder.setPosition(position - first);
    }
    const qsizetype end = finder.toNextBoundary();
    word.cursor = end < 0 ? position : first + end;
    return word;
}

std::optional<TextSelection> TextSelection::after(const QKeyEvent& key, const QString& text) const {
    using Finder = QTextBoundaryFinder;
    if (key.matches(QKeySequence::SelectAll)) {
        return TextSelection{0, text.size()};
    }
    if (key.matches(QKeySequence::SelectNextChar)) {
        return TextSelection{anchor, boundary(text, cursor, Finder::Grapheme, true)};
    }
    if (key.matches(QKeySequence::SelectPreviousChar)) {
        return TextSelection{anchor, boundary(text, cursor, Finder::Grapheme, false)};
    }
    if (key.matches(QKeySequence::SelectNextWord)) {
        return TextSelection{anchor, boundary(text, cursor, Finder::Word, true)};
    }
    if (key.matches(QKeySequence::SelectPreviousWord)) {
        return TextSelection{anchor, boundary(text, cursor, Finder::Word, false)};
    }
    if (key.matches(QKeySequence::SelectStartOfLine)) {
        return TextSelection{anchor, paragraphStart(text, cursor)};
    }
    if (key.matches(QKeySequence::SelectEndOfLine)) {
        return TextSelection{anchor, paragraphEnd(text, cursor)};
    }
    if (key.matches(QKeySequence::SelectStartOfDocument)) {
        return TextSelection{anchor, 0};
    }
    if (key.matches(QKeySequence::SelectEndOfDocument)) {
        return TextSelection{anchor, text.size()};
    }
    return std::nullopt;
}

} // namespace vasker
