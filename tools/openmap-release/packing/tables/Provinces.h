#pragma once
// The provinces and territories of Canada.

#include <optional>
#include <string_view>

namespace vasker {

/// "Alberta" for "AB"; nothing for a code that no province or territory of Canada has.
[[nodiscard]] std::optional<std::string_view> provinceNamed(std::string_view code);

/// Whether `name` is the English name of a province or territory of Canada.
[[nodiscard]] bool isProvince(std::string_view name);

} // namespace vasker
