#pragma once
// Distances along the earth's surface.

#include "data/OpenMapRelease.h"

namespace vasker {

/// Along the great circle, as an angle in radians at the earth's centre.
[[nodiscard]] double angleBetween(const OpenMapRelease::Position& from,
                                  const OpenMapRelease::Position& to);

} // namespace vasker
