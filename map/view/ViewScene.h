#pragma once
// What a map item shows, for a picture of it.

#include "map/frame/MapSnapshot.h"

namespace vasker {

class MapView;

/// The language of the labels on every map of the program: that of its messages.
[[nodiscard]] MapLanguage mapLanguage();

/// What `view` shows apart from what is hovered, at `devicePixels` per logical pixel.
[[nodiscard]] MapScene sceneOf(const MapView& view, double devicePixels);

} // namespace vasker
