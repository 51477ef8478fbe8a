#include "platform/ui/text/TextPieces.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace vasker {

namespace {

/// How far behind the end of a piece the character that stands there is looked at.
constexpr qsizetype lookAhead = 64;

bool isBreak(QChar unit) {
    return unit == u'\n' || unit == u'\r' || unit == QChar::LineSeparator ||
           unit == QChar::ParagraphSeparator;
}

/// The end of a piece at the start of `rest`, which holds no line break within it and is longer.
qsizetype endWithin(QStringView rest) {
    for (qsizetype end = mostPieceUnits; end > 0; --end) {
        if (rest[end - 1].isSpace()) {
            return end;
        }
    }
    QTextBoundaryFinder finder(
        QTextBoundaryFinder::Grapheme,
        rest.first(std::min(rest.size(), mostPieceUnits + lookAhead)).toString());
    finder.setPosition(mostPieceUnits);
    const qsizetype end = finder.isAtBoundary() ? mostPieceUnits : finder.toPreviousBoundary();
    if (end > 0) {
        return end;
    }
    return rest[mostPieceUnits].isLowSurrogate() ? mostPieceUnits - 1 : mostPieceUnits;
}

} // namespace

std::vector<TextPiece> cutIntoPieces(QStringView text) {
    std::vector<TextPiece> pieces;
    qsizetype start = 0;
    while (true) {
        const QStringView rest = text.sliced(start);
        const qsizetype most = std::min(rest.size(), mostPieceUnits);
        qsizetype lines = 0;
        qsizetype afterBreak = 0;
        for (qsizetype i = 0; i < most && lines < mostPieceLines; ++i) {
            if (isBreak(rest[i])) {
                ++lines;
                afterBreak = i + 1;
            }
        }
        if (lines < mostPieceLines && most == rest.size()) {
            pieces.push_back({start, rest.size()});
            return pieces;
        }
        if (afterBreak > 0) {
            pieces.push_back({start, afterBreak - 1});
            start += afterBreak;
        } else {
            const qsizetype end = endWithin(rest);
            pieces.push_back({start, end});
            start += end;
        }
    }
}

bool isLongText(QStringView text) {
    return text.size() > mostPieceUnits ||
           std::count_if(text.begin(), text.end(), isBreak) >= mostPieceLines;
}

} // namespace vasker
