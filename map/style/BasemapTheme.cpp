#include "map/style/BasemapTheme.h"

namespace vasker {

namespace {

BasemapTheme usualTheme(const QString& basemap, bool dark) noexcept {
    if (basemap == QLatin1String("satellite")) {
        return BasemapTheme::satellite;
    }
    if (basemap == QLatin1String("hybrid")) {
        return BasemapTheme::hybrid;
    }
    return dark ? BasemapTheme::dark : BasemapTheme::light;
}

BasemapTheme withHighContrast(BasemapTheme theme) noexcept {
    return static_cast<BasemapTheme>(static_cast<std::size_t>(theme) + basemapThemeCount / 2);
}

} // namespace

BasemapTheme basemapTheme(const QString& basemap, bool dark, bool highContrast) noexcept {
    const BasemapTheme usual = usualTheme(basemap, dark);
    return highContrast ? withHighContrast(usual) : usual;
}

BasemapTheme withoutImagery(BasemapTheme theme) noexcept {
    switch (theme) {
    case BasemapTheme::satellite:
    case BasemapTheme::hybrid:
        return BasemapTheme::dark;
    case BasemapTheme::satelliteHighContrast:
    case BasemapTheme::hybridHighContrast:
        return BasemapTheme::darkHighContrast;
    default:
        return theme;
    }
}

} // namespace vasker
