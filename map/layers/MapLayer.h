#pragma once
// What a frame of the map consists of above its tiles. Adding a layer to the map means composing
// one of these; only a new kind of drawing needs an entry here and a node in map/scene.

#include "map/layers/DotLayer.h"
#include "map/layers/LineLayer.h"
#include "map/layers/SpriteLayer.h"

#include <variant>

namespace vasker {

using MapLayer = std::variant<LineLayer, DotLayer, SpriteLayer>;

} // namespace vasker
