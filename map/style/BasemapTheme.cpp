#include "map/style/BasemapTheme.h"

namespace vasker {

BasemapTheme basemapTheme(const QString& basemap, bool dark) noexcept {
    if (basemap == QLatin1String("satellite")) {
        return BasemapTheme::satellite;
    }
    if (basemap == QLatin1String("hybrid")) {
        return BasemapTheme::hybrid;
    }
    return dark ? BasemapTheme::dark : BasemapTheme::light;
}

} // namespace vasker
