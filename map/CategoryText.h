#pragma once
// The label of a category in the language of the user interface.

#include <QString>

#include <string_view>

namespace vasker {

/// OpenMapRelease::Asset::categoryLabel() of `kind`, translated where it is one of the
/// application's own labels or a plain word that datasets use as a key; any other label stays as it
/// is.
[[nodiscard]] QString categoryText(std::string_view kind);

} // namespace vasker
