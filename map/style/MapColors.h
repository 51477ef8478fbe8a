#pragma once
// The colours of the map's records and of what surrounds them, for each look of the ground.

#include "map/style/TilePicture.h"
#include "platform/ui/Palette.h"

#include <QColor>

namespace vasker {

struct MapColors {
    ColorScheme records; ///< which values the records' own colours take
    QColor beyond;       ///< of the ground where no tile is, beyond the poles' limit
    QColor casing;       ///< around dots and pins
    QColor routeCasing;  ///< around lines: translucent
    QColor outerLine;    ///< around pins and the selected route on photographs; else transparent
    QColor glyph;        ///< on a pin
};

[[nodiscard]] const MapColors& mapColors(BasemapTheme look) noexcept;

} // namespace vasker
