#include "map/style/TileRequest.h"

#include <cmath>

namespace vasker {

double TileRequest::zoom() const noexcept {
    return std::log2(devicePixelsPerMapPoint / devicePixelsPerPixel * worldSize / tilePixels);
}

} // namespace vasker
