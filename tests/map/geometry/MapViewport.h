#pragma once
// The map of a window of 1280 by 800 beside the catalogue, above its caption.

#include "map/geometry/Camera.h"

namespace vasker {

inline constexpr Viewport viewport{960, 748, 36, 0};

} // namespace vasker
