#pragma once
// Cuts a text into pieces that are laid out one by one.

#include <QStringView>

#include <vector>

namespace vasker {

/// A part of a text, in code units, without the line break that may end it.
struct TextPiece {
    qsizetype start;
    qsizetype length;
    friend bool operator==(const TextPiece&, const TextPiece&) = default;
};

/// How much one piece holds at most: about half a screen.
inline constexpr qsizetype mostPieceUnits = 1200;
inline constexpr qsizetype mostPieceLines = 40;

/// Consecutive pieces that hold all of `text`, at least one; a line break at its end is followed by
/// an empty piece. A piece ends after a line break where it has one, else after a blank, else
/// between two characters; only a single character longer than a piece is cut itself, and no
/// surrogate pair ever. Line breaks are line feeds, carriage returns and the separators of lines
/// and paragraphs. Takes time in proportion to the text.
[[nodiscard]] std::vector<TextPiece> cutIntoPieces(QStringView text);

/// Whether `text` is to be shown in pieces: it is more than one screen of a sheet.
[[nodiscard]] bool isLongText(QStringView text);

} // namespace vasker
