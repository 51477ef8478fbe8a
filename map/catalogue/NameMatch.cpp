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

using Places = std::vector<qsizetype>;

/// The first of some overlapping windows that contains the match, so that a long text is not folded
/// many times; where none does, all places. A match has at most `longest` characters.
template <typename Found>
std::pair<Places::const_iterator, Places::const_iterator>
windowThat(const Places& places, std::size_t longest, const Found& found) {
    const auto step = static_cast<std::ptrdiff_t>(std::max<std::size_t>(longest, 256));
    for (auto first = places.begin(); places.end() - first > 1;) {
        const auto last = first + std::min(2 * step, places.end() - first);
        if (found(*first, *std::prev(last))) {
            return {first, last};
        }
        first += std::min(step, places.end() - first);
    }
    return {places.begin(), places.end()};
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
    const std::vector<qsizetype> places = characterBoundaries(name);
    const auto window = windowThat(places, foldedQuery.size(), found);
    const auto first = window.first;
    // A longer text contains what a shorter one does: both ends can be found by halving.
    const auto end = std::partition_point(
        first, window.second, [&](qsizetype place) { return !found(*first, place); });
    const auto afterBegin =
        std::partition_point(first, end, [&](qsizetype place) { return found(place, *end); });
    return TextRange{*std::prev(afterBegin), *end};
}

QString nameMarkup(QStringView name, const TextRange& part) {
    return literally(name.first(part.begin)) + QStringLiteral("<b>") +
           literally(name.mid(part.begin, part.end - part.begin)) + QStringLiteral("</b>") +
           literally(name.sliced(part.end));
}

} // namespace vasker
