#pragma once
// How search compares texts: without differences of letter case, character by character.
//
// Texts are UTF-8; ill-formed bytes count as U+FFFD. Any thread.

#include "data/text/TextLocale.h"

#include <stop_token>
#include <string>
#include <string_view>

namespace vasker {

/// Returns `text` without differences of letter case and of canonical encoding: Unicode's full case
/// folding in `locale` (dotted and dotless i are two letters in Turkish), in normalization form C.
/// Accents and width are kept. Takes time that is linear in the length of the text.
///
/// Throws Cancelled if `stop` asks to stop.
[[nodiscard]] std::string
folded(std::string_view text, const TextLocale& locale, const std::stop_token& stop = {});

/// Returns whether `text` contains `query`, both folded, as whole characters: "montre" is not in
/// "montréal".
[[nodiscard]] bool containsFolded(std::string_view text, std::string_view query);

} // namespace vasker
