#include "map/scene/MapColors.h"

namespace vasker {

const MapColors& mapColors(ColorScheme scheme) noexcept {
    static const MapColors light{.ground = QColor(0xF4, 0xF2, 0xEC),
                                 .graticule = QColor(0xE1, 0xDE, 0xD6),
                                 .casing = QColor(0xFF, 0xFF, 0xFF),
                                 .routeCasing = QColor(0xFF, 0xFF, 0xFF, 217),
                                 .glyph = QColor(0xFF, 0xFF, 0xFF)};
    static const MapColors dark{.ground = QColor(0x26, 0x2B, 0x30),
                                .graticule = QColor(0x36, 0x3C, 0x43),
                                .casing = QColor(0x0E, 0x13, 0x18),
                                .routeCasing = QColor(0x0E, 0x13, 0x18, 204),
                                .glyph = QColor(0x0E, 0x13, 0x18)};
    return scheme == ColorScheme::dark ? dark : light;
}

} // namespace vasker
