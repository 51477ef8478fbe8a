#pragma once
// A painted tile. Belongs to one thread at a time: a worker makes it, the pyramid keeps it, and its
// image is handed over to the scene graph.

#include "map/basemap/Attribution.h"
#include "map/labels/PlaceLabel.h"
#include "map/layers/TileLayer.h"
#include "map/style/PixelRect.h"

#include <QImage>

#include <vector>

namespace vasker {

struct RasterTile {
    TileNumber number = 0;
    TileKey key{};
    double devicePixelsPerMapPoint = 1;
    PixelRect pixels{};
    QImage basemap; ///< without the overlay; null where there is no overlay to be painted anew
    QImage image;   ///< to be shown; null once it was handed over
    std::vector<PlaceLabel> labels;
    std::vector<Attribution> attributions;
    bool lacksImagery = false;        ///< though the theme asks for it
    bool lacksSharperImagery = false; ///< it is no more than colour, and a service has sharper
    bool isHandedOver = false;
};

} // namespace vasker
