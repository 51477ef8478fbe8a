#pragma once
// The length of the scale bar.

#include "map/geometry/Camera.h"

namespace vasker {

struct ScaleBar {
    double metres; ///< that the bar stands for: 1, 2 or 5 times a power of ten
    double pixels; ///< the bar's length on the screen
};

/// Metres on the earth a logical pixel at the camera's centre, across the screen. On the sphere of
/// Web Mercator, radius 6,378,137 m, where a parallel is as long as the cosine of its latitude.
[[nodiscard]] double metresPerPixel(const Camera& camera) noexcept;

/// The longest bar of at most 150 pixels for the row of the camera's centre; the camera's pitch
/// does not shorten it there.
[[nodiscard]] ScaleBar scaleBar(const Camera& camera) noexcept;

} // namespace vasker
