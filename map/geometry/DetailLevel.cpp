#include "map/geometry/DetailLevel.h"

#include <cmath>

namespace vasker {

namespace {

/// Scale of level 0: the world is one tile of 512 pixels.
constexpr double coarsestScale = 512 / worldSize;

std::int32_t tileAt(double position, double tileSize) {
    return static_cast<std::int32_t>(std::floor(position / tileSize));
}

} // namespace

DetailLevel DetailLevel::forScale(double scale) noexcept {
    return DetailLevel(static_cast<int>(std::ceil(2 * std::log2(scale / coarsestScale) - 1e-9)));
}

double DetailLevel::maximumScale() const noexcept {
    return coarsestScale * std::exp2(m_number / 2.0);
}

double DetailLevel::minimumScale() const noexcept {
    return coarsestScale * std::exp2((m_number - 1) / 2.0);
}

TileRange TileRange::covering(const MapRect& rect, DetailLevel level) noexcept {
    const double size = level.tileSize();
    return {{tileAt(rect.x, size), tileAt(rect.y, size)},
            {tileAt(rect.x + rect.width, size), tileAt(rect.y + rect.height, size)}};
}

} // namespace vasker
