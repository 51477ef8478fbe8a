#pragma once
// What the stored choice of a basemap means.

#include "map/style/TilePicture.h"

#include <QString>

namespace vasker {

/// "satellite" and "hybrid", compared exactly, show photographs; every other value the drawn map,
/// in the appearance of the desktop.
[[nodiscard]] BasemapTheme basemapTheme(const QString& basemap, bool dark) noexcept;

} // namespace vasker
