#pragma once
// A typeface in which characters that are to be obeyed, not seen, are nothing: it stands after the
// one that has the letters, which would else show them as boxes. The text stays as it is, for
// searching, copying and reading aloud.

#include <QByteArray>
#include <QString>

namespace vasker {

inline constexpr const char* controlGlyphsFamily = "Vasker Control Glyphs";

/// The font's file, in TrueType: one empty glyph of no width for the control characters (U+0000 to
/// U+001F, U+007F to U+009F) but tabs and line breaks, the fillers of Hangul, the controls of
/// shorthand, and the code points that are never characters. Other invisible characters, such as
/// those of the direction of texts, show nothing in any typeface.
[[nodiscard]] QByteArray controlGlyphs();

} // namespace vasker
