#pragma once
// The basemap in one frame.

#include "map/basemap/Attribution.h"
#include "map/labels/PlaceLabel.h"
#include "map/layers/TileLayer.h"
#include "map/style/TileOverlay.h"

#include <memory>
#include <vector>

namespace vasker {

struct BasemapFrame {
    TileLayer tiles;
    std::vector<PlaceLabel> labels;             ///< of the places in view
    std::vector<Attribution> attributions;      ///< of what is in view, each once
    bool lacksImagery = false;                  ///< somewhere in view, though the theme asks for it
    bool lacksSharperImagery = false;           ///< somewhere in view, for want of a network
    std::shared_ptr<const TileOverlay> overlay; ///< that of the tiles in view
    double scale = 0;        ///< that the tiles in view were painted for; 0: there are none yet
    bool isComplete = false; ///< all that the view asks for is shown, as it asks for it
    bool isChanging = false; ///< something fades in, or is about to: another frame is needed
};

} // namespace vasker
