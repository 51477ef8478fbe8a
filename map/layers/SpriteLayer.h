#pragma once
// Upright images such as pins and labels: quads cut from an atlas and set on whole device pixels.

#include "map/geometry/Camera.h"

#include <QImage>
#include <QRectF>

#include <vector>

namespace vasker {

struct Sprite {
    ScreenPoint corner{}; ///< top-left, in item pixels
    QRectF region;        ///< in the atlas, in logical pixels
};

/// Sprites of one atlas.
struct SpriteSheet {
    QImage atlas; ///< premultiplied, at the frame's density; null: there are no sprites
    std::vector<Sprite> sprites;
};

struct SpriteLayer {
    std::vector<SpriteSheet> sheets;
};

} // namespace vasker
