#pragma once
// How many lines and vertices the routes of a record have.

#include "data/OpenMapRelease.h"

#include <cstddef>
#include <string>

namespace vasker {

/// The positions of all routes of `record`.
[[nodiscard]] std::size_t routePoints(const OpenMapRelease::Asset& record);

/// "2 lines, 14,676 vertices".
[[nodiscard]] std::string routesText(const OpenMapRelease::Asset& record);

} // namespace vasker
