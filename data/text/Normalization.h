#pragma once
// Unicode's canonical normal forms, in time that is linear in the length of the text.
//
// ICU sorts combining marks by insertion, which is quadratic in the length of a run of marks, and a
// text of a release may be a run of millions. withOrderedMarks() comes first where a text may be of
// any length; it changes no normal form.

#include <unicode/unistr.h>

namespace vasker {

/// Returns a text that is canonically equivalent to `text` and has each run of combining marks that
/// is longer than 64 code units in canonical order.
[[nodiscard]] icu::UnicodeString withOrderedMarks(const icu::UnicodeString& text);

/// Returns `text` without those combining marks that follow 30 others, which is more than any
/// language uses (the limit of the stream-safe text format of UAX #15).
[[nodiscard]] icu::UnicodeString withShortRuns(const icu::UnicodeString& text);

/// Returns normalization form C of `text`.
[[nodiscard]] icu::UnicodeString composed(const icu::UnicodeString& text);

/// Returns normalization form D of `text`.
[[nodiscard]] icu::UnicodeString decomposed(const icu::UnicodeString& text);

/// Returns whether form C never reaches across a place before `codePoint`: composed(a + b) is
/// composed(a) + composed(b) for every b that begins with it.
[[nodiscard]] bool hasCompositionBoundaryBefore(UChar32 codePoint);

} // namespace vasker
