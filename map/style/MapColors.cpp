#include "map/style/MapColors.h"

namespace vasker {

namespace {

const QColor white(0xFF, 0xFF, 0xFF);
const QColor night(0x0E, 0x13, 0x18);
const QColor darkWater(0x15, 0x1E, 0x27);

} // namespace

const MapColors& mapColors(BasemapTheme look) noexcept {
    static const MapColors light{.records = ColorScheme::light,
                                 .beyond = QColor(0xCB, 0xDF, 0xEA),
                                 .casing = white,
                                 .routeCasing = QColor(0xFF, 0xFF, 0xFF, 217),
                                 .outerLine = Qt::transparent,
                                 .glyph = white};
    static const MapColors dark{.records = ColorScheme::dark,
                                .beyond = darkWater,
                                .casing = night,
                                .routeCasing = QColor(0x0E, 0x13, 0x18, 204),
                                .outerLine = Qt::transparent,
                                .glyph = night};
    // Mid-tones of photographs lie between fill and casing: there a white line carries the
    // contrast.
    static const MapColors imagery{.records = ColorScheme::dark,
                                   .beyond = darkWater,
                                   .casing = night,
                                   .routeCasing = QColor(0x0E, 0x13, 0x18, 204),
                                   .outerLine = QColor(0xFF, 0xFF, 0xFF, 230),
                                   .glyph = night};
    switch (look) {
    case BasemapTheme::light:
        return light;
    case BasemapTheme::dark:
        return dark;
    case BasemapTheme::satellite:
    case BasemapTheme::hybrid:
        break;
    }
    return imagery;
}

} // namespace vasker
