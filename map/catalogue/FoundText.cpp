#include "map/catalogue/FoundText.h"

#include "map/catalogue/NameMatch.h"
#include "presentation/FactLabel.h"
#include "presentation/RecordText.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace vasker {

namespace {

// Ten thousand characters, which a fact may have, of four bytes each.
constexpr std::size_t longestSearchedValue = 40'000;

// In characters. A line of the list has about 38.
constexpr int longestLabel = 32;
constexpr int longestLead = 12; ///< before the match
constexpr int longestMatch = 60;
constexpr int longestLine = 36;
constexpr int shortestTail = 4; ///< after the match

struct Line {
    QString text;
    TextRange match;
};

/// The first `count` characters of `text`; fewer where they have very many code points.
QStringView firstCharacters(QStringView text, int count) {
    const QStringView some = text.first(std::min<qsizetype>(text.size(), 16 * qsizetype{count}));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, some.data(), some.size());
    qsizetype end = 0;
    for (; count > 0; --count) {
        const qsizetype next = finder.toNextBoundary();
        // What ends with a part of the text may be half a character.
        if (next == -1 || (next == some.size() && some.size() < text.size())) {
            break;
        }
        end = next;
    }
    return some.first(end);
}

QStringView lastCharacters(QStringView text, int count) {
    const QStringView some = text.last(std::min<qsizetype>(text.size(), 16 * qsizetype{count}));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, some.data(), some.size());
    finder.toEnd();
    qsizetype begin = some.size();
    for (; count > 0; --count) {
        const qsizetype previous = finder.toPreviousBoundary();
        if (previous == -1 || (previous == 0 && some.size() < text.size())) {
            break;
        }
        begin = previous;
    }
    return some.sliced(begin);
}

QString cut(QStringView text, int count) {
    const QStringView kept = firstCharacters(text, count);
    return kept.size() == text.size() ? text.toString() : kept.toString() + u'…';
}

/// The end of `before` that stands before a match: whole words, where there are some.
QStringView leadOf(QStringView before) {
    const QStringView lead = lastCharacters(before, longestLead);
    const qsizetype cutOff = before.size() - lead.size();
    const qsizetype blank = lead.indexOf(u' ');
    const bool beginsInAWord = cutOff > 0 && before[cutOff - 1] != u' ';
    return beginsInAWord && blank + 1 < lead.size() ? lead.sliced(blank + 1) : lead;
}

/// The beginning of `after` that stands behind a match: whole words, where there are some.
QString tailOf(QStringView after, int count) {
    QStringView tail = firstCharacters(after, count);
    if (tail.size() == after.size()) {
        return tail.toString();
    }
    if (const qsizetype blank = tail.lastIndexOf(u' '); blank != -1 && after[tail.size()] != u' ') {
        tail = tail.first(blank);
    }
    return tail.toString() + u'…';
}

/// The part of `value` around `match` that fits in a line after `used` characters.
Line excerpt(QStringView value, const TextRange& match, int used) {
    const QStringView before = value.first(match.begin);
    const QStringView after = value.sliced(match.end);
    const QStringView lead = leadOf(before);
    Line line{lead.size() == before.size() ? QString() : QStringLiteral("…"), {}};
    line.text += lead;
    line.match.begin = line.text.size();
    line.text += cut(value.sliced(match.begin, match.end - match.begin), longestMatch);
    line.match.end = line.text.size();
    const auto left = longestLine - used - static_cast<int>(line.text.size());
    line.text += tailOf(after, std::max(left, shortestTail));
    return line;
}

QString label(const OpenMapRelease::Asset& asset, const SearchedText& found) {
    using Field = SearchedText::Field;
    switch (found.field) {
    case Field::id:
        return FoundText::tr("Id");
    case Field::company:
        return FoundText::tr("Reporting company");
    case Field::jurisdiction:
        return FoundText::tr("Jurisdiction");
    default:
        return cut(factLabel(asset.facts[found.fact].label), longestLabel);
    }
}

/// Blanks for line breaks and tabs, so that it stays one line.
QString inOneLine(QString text) {
    std::ranges::replace_if(
        text,
        [](QChar each) {
            const auto category = each.category();
            return category == QChar::Other_Control || category == QChar::Separator_Line ||
                   category == QChar::Separator_Paragraph;
        },
        u' ');
    return text;
}

} // namespace

FoundText
FoundText::of(const ReleaseIndex& index, AssetIndex record, std::string_view foldedQuery) {
    const auto found = index.firstMatch(foldedQuery, record);
    if (!found || found->field == SearchedText::Field::name) {
        return {};
    }
    const QString name = inOneLine(label(index.release().assets[record], *found));
    const QString value = toQString(found->text.substr(0, longestSearchedValue));
    const auto match = found->text.size() > longestSearchedValue
                           ? std::nullopt
                           : matchedPart(value, foldedQuery, index.locale());
    const QString prefix = tr("%1: ").arg(name);
    const Line line =
        excerpt(value, match.value_or(TextRange{0, 0}), static_cast<int>(prefix.size()));
    return {.markup =
                nameMarkup(prefix + inOneLine(line.text),
                           {prefix.size() + line.match.begin, prefix.size() + line.match.end}),
            .spoken = tr("Found in %1: %2").arg(name, inOneLine(line.text))};
}

} // namespace vasker
