#pragma once
// What a frame of the map consists of. Adding a layer to the map means composing one of these; only
// a new kind of drawing needs an entry here and a node in map/scene.

#include "map/layers/BackgroundLayer.h"
#include "map/layers/DotLayer.h"
#include "map/layers/LineLayer.h"
#include "map/layers/SpriteLayer.h"
#include "map/layers/TileLayer.h"

#include <variant>

namespace vasker {

using MapLayer = std::variant<BackgroundLayer, TileLayer, LineLayer, DotLayer, SpriteLayer>;

} // namespace vasker
