#pragma once
// The label of a category in the language of the user interface.

#include "data/OpenMapRelease.h"

#include <QString>

#include <string_view>

namespace vasker {

/// OpenMapRelease::Asset::categoryLabel() of `kind`, translated where it is one of the
/// application's own labels or a plain word that datasets use as a key; any other label stays as it
/// is.
[[nodiscard]] QString categoryText(std::string_view kind);

/// The category and the period of a record: "Gas plant · 2016".
[[nodiscard]] QString categoryLine(const OpenMapRelease::Asset& asset);

} // namespace vasker
