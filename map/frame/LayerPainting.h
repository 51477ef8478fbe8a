#pragma once
// Draws the layers of a frame with any painter, in item pixels, and leaves its state as it was. Any
// thread.

#include "map/layers/MapLayer.h"
#include "map/layers/TileLayer.h"

#include <QImage>

#include <map>

class QPainter;

namespace vasker {

using TileImages = std::map<TileNumber, QImage>;

/// Images that `layer` hands over join `images`; those that it needs no longer leave.
void takeImages(TileLayer& layer, TileImages& images);

/// Tiles that have no image are passed over. What is tilted needs an engine that knows perspective,
/// as that of images does.
void paintTiles(QPainter& painter, const TileLayer& layer, const TileImages& images);

/// Sprites stand on whole device pixels, of which the painter and the atlases have `devicePixels`
/// per item pixel.
void paintLayer(QPainter& painter, const MapLayer& layer, double devicePixels);

} // namespace vasker
