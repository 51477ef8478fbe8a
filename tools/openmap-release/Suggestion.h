#pragma once
// "Did you mean": the known word that a mistyped one is nearest to.

#include <span>
#include <string>
#include <string_view>

namespace vasker {

/// ", did you mean WORD?" for the nearest of `known`, the first of several; empty where none is
/// near (more than a third of the letters differ). Letter case does not count.
[[nodiscard]] std::string suggestion(std::string_view word,
                                     std::span<const std::string_view> known);

} // namespace vasker
