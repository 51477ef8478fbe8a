#pragma once
// One frame of the map: everything that is seen, as a value.

#include "map/basemap/Attribution.h"
#include "map/labels/PlaceLabel.h"
#include "map/layers/MapLayer.h"
#include "map/layers/TileLayer.h"

#include <QColor>
#include <QSizeF>

#include <vector>

namespace vasker {

struct MapFrame {
    QSizeF size;             ///< logical pixels
    double devicePixels = 1; ///< per logical pixel
    QColor background;       ///< below everything
    TileLayer tiles;
    std::vector<MapLayer> layers; ///< above the tiles, in drawing order

    // What is said about it.
    std::vector<PlaceLabel> places; ///< those whose labels compete for room in it
    std::vector<Attribution> attributions;
    bool lacksImagery = false; ///< imagery is asked for and missing somewhere in view
    bool lacksSharperImagery =
        false;                 ///< it is only colour somewhere in view, for want of a network
    bool isComplete = false;   ///< all that is asked for is shown
    bool isUnfinished = false; ///< another frame is needed, though nothing changes

    /// Takes over the images that `before` was to hand over and did not.
    void takeImages(MapFrame& before);
};

} // namespace vasker
