#pragma once
// The colours of the map that are not a record's own.

#include "platform/ui/Palette.h"

#include <QColor>

namespace vasker {

struct MapColors {
    QColor ground;
    QColor graticule;
    QColor casing;      ///< around dots and balloons
    QColor routeCasing; ///< around lines: translucent
    QColor glyph;       ///< on a balloon
};

[[nodiscard]] const MapColors& mapColors(ColorScheme scheme) noexcept;

} // namespace vasker
