#pragma once
// Meridians and parallels to draw on a plain ground.

#include "map/geometry/Camera.h"

#include <vector>

namespace vasker {

struct Graticule {
    std::vector<double> meridians; ///< x in pixels, west to east
    std::vector<double> parallels; ///< y in pixels, north to south
};

/// The lines in the camera's viewport at the finest step of 30, 10, 5, 2, 1, 0.5, 0.2, 0.1 ...
/// degrees whose meridians stand at least 120 pixels apart.
[[nodiscard]] Graticule graticule(const Camera& camera);

} // namespace vasker
