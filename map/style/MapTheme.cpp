#include "map/style/MapTheme.h"

#include <array>
#include <cstddef>

namespace vasker {

namespace {

QColor rgb(QRgb value, double opacity = 1) {
    QColor color = QColor::fromRgb(value);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

constexpr QRgb nearBlack = 0x0E1318;

MapTheme lightTheme() {
    return {.background = rgb(0xCBDFEA),
            .land = rgb(0xF4F2EC),
            .water = rgb(0xCBDFEA),
            .urban = rgb(0xE5DFD5),
            .green = rgb(0xEBEEE2),
            .ice = rgb(0xFCFDFD),
            .building = rgb(0xE1DACF),
            .coast = rgb(0xA3C0D0),
            .river = rgb(0xB3D0E0),
            .mainRoad = rgb(0xFFFFFF),
            .minorRoad = rgb(0xFBFAF7),
            .thinRoad = rgb(0xDDD6CA),
            .roadCasing = rgb(0xDDD6CA),
            .rail = rgb(0xCDC8BF),
            .regionBorder = rgb(0xB7AEBC),
            .countryBorder = rgb(0x8C8196),
            .countryHalo = rgb(0x8C8196, 0.16),
            .placeLabel = rgb(0x3B4047),
            .regionLabel = rgb(0x655B70),
            .waterLabel = rgb(0x2F6480),
            .recordLabel = rgb(0x1A1D21),
            .labelHalo = rgb(0xFAF9F6, 0.92),
            .records = themeColors(ColorScheme::light).records,
            .markerCasing = rgb(0xFFFFFF),
            .routeCasing = rgb(0xFFFFFF, 0.85),
            .markerOutline = Qt::transparent,
            .pinSymbol = rgb(0xFFFFFF)};
}

MapTheme darkTheme() {
    return {.background = rgb(0x151E27),
            .land = rgb(0x262B30),
            .water = rgb(0x151E27),
            .urban = rgb(0x33383E),
            .green = rgb(0x272E2F),
            .ice = rgb(0x353C43),
            .building = rgb(0x363B41),
            .coast = rgb(0x33454F),
            .river = rgb(0x1B2832),
            .mainRoad = rgb(0x41474E),
            .minorRoad = rgb(0x373D43),
            .thinRoad = rgb(0x3B4147),
            .roadCasing = rgb(0x1F2428),
            .rail = rgb(0x3A3F45),
            .regionBorder = rgb(0x56505E),
            .countryBorder = rgb(0x7E7689),
            .countryHalo = rgb(0x7E7689, 0.16),
            .placeLabel = rgb(0xC6CBD1),
            .regionLabel = rgb(0xABA3B5),
            .waterLabel = rgb(0x7FA9C2),
            .recordLabel = rgb(0xECEEF0),
            .labelHalo = rgb(0x1E2328, 0.92),
            .records = themeColors(ColorScheme::dark).records,
            .markerCasing = rgb(nearBlack),
            .routeCasing = rgb(nearBlack, 0.8),
            .markerOutline = Qt::transparent,
            .pinSymbol = rgb(nearBlack)};
}

MapTheme lightHighContrastTheme() {
    return {.background = rgb(0xDCEAF2),
            .land = rgb(0xFFFFFF),
            .water = rgb(0xDCEAF2),
            .urban = rgb(0xF0EDE6),
            .green = rgb(0xF1F5EA),
            .ice = rgb(0xFFFFFF),
            .building = rgb(0xEBE6DD),
            .coast = rgb(0x557A90),
            .river = rgb(0x5B7F95),
            .mainRoad = rgb(0xFFFFFF),
            .minorRoad = rgb(0xFFFFFF),
            .thinRoad = rgb(0x837B6E),
            .roadCasing = rgb(0x837B6E),
            .rail = rgb(0x7C766E),
            .regionBorder = rgb(0x766B80),
            .countryBorder = rgb(0x544A5E),
            .countryHalo = rgb(0x544A5E, 0.16),
            .placeLabel = rgb(0x1A1D21),
            .regionLabel = rgb(0x3F3649),
            .waterLabel = rgb(0x0E415B),
            .recordLabel = rgb(0x000000),
            .labelHalo = rgb(0xFFFFFF),
            .records = themeColors(ColorScheme::light).highContrastRecords,
            .markerCasing = rgb(0xFFFFFF),
            .routeCasing = rgb(0xFFFFFF),
            .markerOutline = rgb(0x1A1D21),
            .pinSymbol = rgb(0xFFFFFF)};
}

MapTheme darkHighContrastTheme() {
    return {.background = rgb(0x000000),
            .land = rgb(0x14171A),
            .water = rgb(0x000000),
            .urban = rgb(0x1E2226),
            .green = rgb(0x151A1A),
            .ice = rgb(0x24292E),
            .building = rgb(0x202529),
            .coast = rgb(0x6C8795),
            .river = rgb(0x5F89A0),
            .mainRoad = rgb(0x2A2F34),
            .minorRoad = rgb(0x24292E),
            .thinRoad = rgb(0x757D85),
            .roadCasing = rgb(0x757D85),
            .rail = rgb(0x7B828A),
            .regionBorder = rgb(0x8D8597),
            .countryBorder = rgb(0xB5ADC0),
            .countryHalo = rgb(0xB5ADC0, 0.16),
            .placeLabel = rgb(0xFFFFFF),
            .regionLabel = rgb(0xD9D2E3),
            .waterLabel = rgb(0xB9DCF0),
            .recordLabel = rgb(0xFFFFFF),
            .labelHalo = rgb(0x000000),
            .records = themeColors(ColorScheme::dark).highContrastRecords,
            .markerCasing = rgb(0x000000),
            .routeCasing = rgb(0x000000),
            .markerOutline = rgb(0xFFFFFF),
            .pinSymbol = rgb(0x000000)};
}

/// Mid-tones of imagery lie between a marker and its casing: a white outline carries the contrast.
/// Waters have the tint that the built-in imagery gives to shallow seas.
MapTheme satelliteTheme(MapTheme theme) {
    theme.water = rgb(0x2F5A88, 0.6);
    theme.coast = rgb(0x6E9CC6, 0.9);
    theme.river = rgb(0x4A7DB0, 0.9);
    theme.placeLabel = rgb(0xFFFFFF);
    theme.regionLabel = rgb(0xFFFFFF, 0.86);
    theme.waterLabel = rgb(0xCFE6F5);
    theme.recordLabel = rgb(0xFFFFFF);
    theme.labelHalo = rgb(0x0A0F14, 0.82);
    theme.markerOutline = rgb(0xFFFFFF, 0.9);
    return theme;
}

MapTheme hybridTheme(MapTheme theme) {
    for (QColor* area : {&theme.land,
                         &theme.water,
                         &theme.urban,
                         &theme.green,
                         &theme.ice,
                         &theme.building,
                         &theme.coast,
                         &theme.river,
                         &theme.roadCasing,
                         &theme.rail}) {
        *area = Qt::transparent;
    }
    for (QColor* road : {&theme.mainRoad, &theme.minorRoad, &theme.thinRoad}) {
        *road = rgb(0xF5E3B0, 0.5);
    }
    theme.regionBorder = rgb(0xFFFFFF, 0.5);
    theme.countryBorder = rgb(0xFFFFFF);
    theme.countryHalo = rgb(0x0A1018, 0.35);
    return theme;
}

/// What was translucent over imagery no longer is, but for areas and roads.
MapTheme opaque(MapTheme theme) {
    for (QColor* color : {&theme.regionBorder,
                          &theme.regionLabel,
                          &theme.labelHalo,
                          &theme.routeCasing,
                          &theme.markerOutline}) {
        color->setAlphaF(1);
    }
    return theme;
}

} // namespace

const MapTheme& mapTheme(BasemapTheme theme) noexcept {
    // In the order of BasemapTheme.
    static const std::array<MapTheme, basemapThemeCount> themes{
        lightTheme(),
        darkTheme(),
        satelliteTheme(darkTheme()),
        hybridTheme(satelliteTheme(darkTheme())),
        lightHighContrastTheme(),
        darkHighContrastTheme(),
        opaque(satelliteTheme(darkHighContrastTheme())),
        opaque(hybridTheme(satelliteTheme(darkHighContrastTheme())))};
    return themes[static_cast<std::size_t>(theme)];
}

} // namespace vasker
