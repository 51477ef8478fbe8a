#include "map/catalogue/NameMatch.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <vector>

namespace vasker {

namespace {

std::vector<qsizetype> characterBoundaries(QStringView text) {
    std::vector<qsizetype> boundaries{0};
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    for (qsizetype next = finder.toNextBoundary(); next != -1; next = finder.toNextBoundary()) {
        boundaries.push_back(next);
    }
    return boundaries;
}

// Styled text runs blanks together and knows no line feed.
QString literally(QStringView text) {
    QString literal = text.toString().toHtmlEscaped();
    literal.replace(u'\n', QStringLiteral("<br>"));
    literal.replace(QStringLiteral("  "), QStringLiteral(" &nbsp;"));
    return literal;
}

} // namespace

std::optional<TextRange>
matchedPart(QStringView name, std::string_view foldedQuery, const TextLocale& locale) {
    const auto found = [&](qsizetype begin, qsizetype end) {
        const std::string part = name.mid(begin, end - begin).toUtf8().toStdString();
        return containsFolded(folded(part, locale), foldedQuery);
    };
    if (foldedQuery.empty() || !found(0, name.size())) {
        return std::nullopt;
    }
    // A longer text contains what a shorter one does: both ends can be found by halving.
    const std::vector<qsizetype> places = characterBoundaries(name);
    const auto end =
        std::ranges::partition_point(places, [&](qsizetype place) { return !found(0, place); });
    const auto afterBegin = std::partition_point(
        places.begin(), end, [&](qsizetype place) { return found(place, *end); });
    return TextRange{*std::prev(afterBegin), *end};
}

QString nameMarkup(QStringView name, const TextRange& part) {
    return literally(name.first(part.begin)) + QStringLiteral("<b>") +
           literally(name.mid(part.begin, part.end - part.begin)) + QStringLiteral("</b>") +
           literally(name.sliced(part.end));
}

} // namespace vasker
