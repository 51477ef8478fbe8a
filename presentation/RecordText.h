#pragma once
// Texts composed from a record, in the language of the user interface, wherever it is shown. What
// the release says stands in them unchanged, to be shown as plain text.

#include "data/OpenMapRelease.h"

#include <QString>

#include <cstddef>
#include <string_view>

namespace vasker {

[[nodiscard]] QString toQString(std::string_view utf8);

/// What a part of a line shows at most, in bytes. Texts of a release that have no bound of their own
/// would take minutes to set.
inline constexpr std::size_t mostLineBytes = 10'000;
/// The same of a paragraph, or of a name, which may have a thousand characters.
inline constexpr std::size_t mostParagraphBytes = 40'000;

/// `utf8`, or as much of it as a line or a paragraph shows, and an ellipsis.
[[nodiscard]] QString lineText(std::string_view utf8);
[[nodiscard]] QString paragraphText(std::string_view utf8);

/// Both parts, separated by a dot in the middle of the line.
[[nodiscard]] QString joined(const QString& first, const QString& second);

/// OpenMapRelease::Asset::categoryLabel() of `kind`, translated if it is one of the application's
/// own; a label that comes from the release stays as it is, as far as a line holds it.
[[nodiscard]] QString categoryText(std::string_view kind);

/// The category and the source period: "Gas plant · 2016".
[[nodiscard]] QString categoryLine(const OpenMapRelease::Asset& asset);

/// The category and the id: "Gas plant · A-0".
[[nodiscard]] QString recordSubtitle(const OpenMapRelease::Asset& asset);

/// The short name of the source and the period of the value: "NPRI · 2016".
[[nodiscard]] QString sourceLine(const OpenMapRelease::Source& source,
                                 const OpenMapRelease::Fact& fact);

} // namespace vasker
