#pragma once
// What a map item shows, to make a picture of it.

#include "map/frame/MapSnapshot.h"

namespace vasker {

class MapView;

/// What `view` shows apart from what is hovered, at `devicePixels` per logical pixel.
[[nodiscard]] MapScene sceneOf(MapView& view, double devicePixels);

} // namespace vasker
