#pragma once
// What of the basemap a map looks at, and how.

#include "map/geometry/Camera.h"
#include "map/labels/MapLanguage.h"
#include "map/style/BasemapTheme.h"
#include "map/style/TileOverlay.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace vasker {

struct BasemapView {
    Camera camera{canadaOverview, {1, 1}};
    double devicePixelsPerPixel = 1;
    BasemapTheme theme = BasemapTheme::light;
    MapLanguage language = MapLanguage::english;
    bool isResting = true;             ///< the camera has not moved for a moment
    bool fades = true;                 ///< a new theme may fade in
    bool uploads = true;               ///< images become textures on a card, a few a frame
    std::uint64_t overlayRevision = 0; ///< changes when `overlay` would return something else
    /// What is painted over the raster tiles of `scale` logical pixels per map point. May be empty.
    std::function<std::shared_ptr<const TileOverlay>(double scale)> overlay;
};

} // namespace vasker
