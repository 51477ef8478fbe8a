#pragma once
// The symbol and colour of each category in lists and on the map. Keys are compared exactly.

#include "platform/ui/theme/ThemeColors.h"

#include <string_view>

namespace vasker {

/// The name of the icon for the category key `kind`; "mappin" for a key without an own one.
[[nodiscard]] std::string_view symbol(std::string_view kind) noexcept;

/// The colour for the category key `kind`; gray for a key without an own one.
[[nodiscard]] PaletteColor color(std::string_view kind) noexcept;

/// Whether the category key `kind` has an icon of its own.
[[nodiscard]] bool hasOwnSymbol(std::string_view kind) noexcept;

} // namespace vasker
