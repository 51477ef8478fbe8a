#include "map/view/BasemapChoice.h"

namespace vasker {

BasemapLook basemapLook(const QString& basemap, bool dark) noexcept {
    if (basemap == QLatin1String("satellite")) {
        return BasemapLook::satellite;
    }
    if (basemap == QLatin1String("hybrid")) {
        return BasemapLook::hybrid;
    }
    return dark ? BasemapLook::dark : BasemapLook::light;
}

} // namespace vasker
