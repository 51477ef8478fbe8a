#pragma once
// A typeface that shows control characters as nothing. Set after the typeface of the letters, which
// would show them as boxes. The text stays as it is, for searching, copying and reading aloud.

#include <QByteArray>
#include <QString>

namespace vasker {

inline constexpr const char* controlGlyphsFamily = "Vasker Control Glyphs";

/// The font's file, in TrueType: one empty glyph of no width for the control characters (U+0000 to
/// U+001F, U+007F to U+009F) but tabs and line breaks, the fillers of Hangul and Khitan, the
/// joiners of Brahmi numbers and of hieroglyphs, the controls of shorthand, and the code points
/// that are never characters. Other invisible characters, such as those of the direction of texts,
/// show nothing in any typeface.
[[nodiscard]] QByteArray controlGlyphs();

} // namespace vasker
