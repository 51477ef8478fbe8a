#pragma once
// Texts composed from a record, in the language of the user interface, wherever it is shown. What
// the release says stands in them unchanged but for its line breaks, to be shown as plain text.

#include "data/OpenMapRelease.h"

#include <QString>

#include <cstddef>
#include <string_view>

namespace vasker {

[[nodiscard]] QString toQString(std::string_view utf8);

/// All of `utf8`, for where its user reads it. What Unicode calls a mandatory line break is a line
/// feed: the text layout would show nothing for the others, and run words together.
[[nodiscard]] QString wholeText(std::string_view utf8);

/// What a place of a line or two shows of a text at most, in bytes: a row of a list, a menu, a card
/// at the pointer, an announcement. Texts of a release have no bound of their own, and would take
/// minutes to set there.
inline constexpr std::size_t mostLineBytes = 10'000;
/// The same of a name, which may have a thousand characters.
inline constexpr std::size_t mostNameBytes = 40'000;

/// wholeText(), or as much of it as such a place shows, and an ellipsis.
[[nodiscard]] QString lineText(std::string_view utf8);
[[nodiscard]] QString nameText(std::string_view utf8);

/// Both parts, separated by a dot in the middle of the line.
[[nodiscard]] QString joined(const QString& first, const QString& second);

/// OpenMapRelease::Asset::categoryLabel() of `kind`, translated if it is one of the application's
/// own; a label that comes from the release stays as it is, as far as lineText() holds it.
[[nodiscard]] QString categoryText(std::string_view kind);

/// The category and the source period, each as lineText(): "Gas plant · 2016".
[[nodiscard]] QString categoryLine(const OpenMapRelease::Asset& asset);

/// The category and the id, both whole: "Gas plant · A-0".
[[nodiscard]] QString recordSubtitle(const OpenMapRelease::Asset& asset);

/// The short name of the source and the period of the value, both whole: "NPRI · 2016".
[[nodiscard]] QString sourceLine(const OpenMapRelease::Source& source,
                                 const OpenMapRelease::Fact& fact);

} // namespace vasker
