#pragma once
// Which part of a name or another value the search text was found in, and how that is shown.

#include "data/text/CaseFolding.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <string_view>

namespace vasker {

/// Places between the UTF-16 units of a text.
struct TextRange {
    qsizetype begin;
    qsizetype end;
    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// The first place of whole characters in `name` that contains `foldedQuery` as search compares
/// them; nothing where there is none or the query is empty.
[[nodiscard]] std::optional<TextRange>
matchedPart(QStringView name, std::string_view foldedQuery, const TextLocale& locale);

/// `name` as styled text with `part` in bold. Whatever looks like markup in it is shown literally,
/// and so are its blanks and line breaks.
[[nodiscard]] QString nameMarkup(QStringView name, const TextRange& part);

} // namespace vasker
