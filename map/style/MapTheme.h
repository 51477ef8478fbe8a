#pragma once
// Every colour of the map, by role: one entry a theme.

#include "map/style/BasemapTheme.h"
#include "platform/ui/theme/ThemeColors.h"

#include <QColor>

namespace vasker {

/// Roles that a theme does not draw are transparent. Basemap colours stay pale, so that each record
/// colour stands at least 3:1 against every area; in high contrast 4.5:1, and labels stand 7:1.
struct MapTheme {
    // Areas of the basemap.
    QColor background; ///< where there is no tile: beyond the limits of the projection
    QColor land;
    QColor water;
    QColor urban;
    QColor green; ///< woods and parks
    QColor ice;
    QColor building;
    // Lines of the basemap.
    QColor coast;
    QColor river;
    QColor mainRoad;
    QColor minorRoad;
    QColor thinRoad; ///< of roads too narrow for a casing
    QColor roadCasing;
    QColor rail;
    QColor regionBorder;
    QColor countryBorder;
    QColor countryHalo;
    // Labels.
    QColor placeLabel;
    QColor regionLabel;
    QColor waterLabel;
    QColor recordLabel;
    QColor labelHalo;
    // Records.
    RecordPalette records;
    QColor markerCasing;  ///< around dots, pins and the selected route
    QColor routeCasing;   ///< translucent but in high contrast
    QColor markerOutline; ///< around the casing of pins and of the selected route
    QColor pinSymbol;

    [[nodiscard]] const QColor& record(PaletteColor color) const {
        return records.at(static_cast<std::size_t>(color));
    }
};

/// The theme's colours. Of hybrid, the basemap's are those drawn over imagery; of satellite, waters
/// are those drawn over enlarged imagery of either theme, and all else is the dark theme's, which
/// stands in where imagery is missing. Those for high contrast are made likewise.
[[nodiscard]] const MapTheme& mapTheme(BasemapTheme theme) noexcept;

} // namespace vasker
