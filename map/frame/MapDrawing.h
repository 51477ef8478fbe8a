#pragma once
// A frame of the map that any painter can draw: on an image at any density, on a page. Immutable;
// any thread.

#include "map/frame/LayerPainting.h"
#include "map/frame/MapFrame.h"
#include "map/layers/Shape.h"

#include <vector>

class QPainter;

namespace vasker {

struct MapDrawing {
    MapFrame frame;            ///< with routes and dots live; its sprites are not drawn
    std::vector<Shape> shapes; ///< its pins and labels, in drawing order
    TileImages tiles;

    /// Draws the background and the raster tiles. What is tilted needs an engine that knows
    /// perspective, as that of images does.
    void paintBasemap(QPainter& painter) const;
    /// Draws all that lies above: routes, dots, pins and labels, as lines, discs and glyphs.
    void paintRecords(QPainter& painter) const;
};

} // namespace vasker
