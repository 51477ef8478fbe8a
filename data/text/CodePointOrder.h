#pragma once
// The order of kinds, which depends on no locale.

#include <string>
#include <string_view>

namespace vasker {

/// Returns bytes whose order is that of the code points of `text` in normalization form C. Texts
/// that differ in their encoding only have the same key. Any thread.
[[nodiscard]] std::string codePointSortKey(std::string_view text);

} // namespace vasker
