#pragma once
// The label of a fact in the language of the user interface.

#include <QString>

#include <string_view>

namespace vasker {

/// The translation of exactly `label`, if it is one that packing writes: the same with another year
/// or another facility's id counts as well ("Name in the report for 2022", "Industry of G10196").
/// Any other label stays as it is, and so do all in English. `label` is UTF-8.
[[nodiscard]] QString factLabel(std::string_view label);

} // namespace vasker
