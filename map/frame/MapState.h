#pragma once
// What a map shows, apart from its records and its camera.

#include "map/geometry/ScreenRect.h"
#include "map/records/MarkerFrame.h"
#include "map/style/BasemapTheme.h"

#include <optional>
#include <vector>

namespace vasker {

struct MapState {
    double devicePixels = 1; ///< per logical pixel
    BasemapTheme theme = BasemapTheme::light;
    double textScale = 1; ///< how large the desktop wants texts; 1 is the usual
    RecordDrawing drawing = RecordDrawing::painted;
    bool isResting = true;                ///< the camera has not moved for a moment
    bool fades = true;                    ///< a new theme may fade in
    std::vector<ScreenRect> obstacles;    ///< controls over the map: labels keep clear of them
    std::optional<AssetIndex> unlabelled; ///< a record that is labelled in another way
};

} // namespace vasker
