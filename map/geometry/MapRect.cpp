#include "map/geometry/MapRect.h"

#include <algorithm>

namespace vasker {

bool MapRect::intersects(const MapRect& other) const noexcept {
    return !isNull() && !other.isNull() && x <= other.x + other.width && other.x <= x + width &&
           y <= other.y + other.height && other.y <= y + height;
}

MapRect MapRect::united(const MapRect& other) const noexcept {
    if (isNull()) {
        return other;
    }
    if (other.isNull()) {
        return *this;
    }
    const double west = std::min(x, other.x);
    const double north = std::min(y, other.y);
    return {west,
            north,
            std::max(x + width, other.x + other.width) - west,
            std::max(y + height, other.y + other.height) - north};
}

} // namespace vasker
