#include "map/records/Framing.h"

namespace vasker {

CameraPosition framing(const OpenMapRelease::Asset& asset) {
    MapRect bounds = MapRect::null();
    for (const auto& route : asset.routes) {
        for (const auto& position : route) {
            const MapPoint point = coordinateToMapPoint({position.latitude, position.longitude});
            bounds = bounds.united({point.x, point.y, 1, 1});
        }
    }
    if (bounds.isNull()) {
        return CoordinateRegion{{asset.latitude, asset.longitude}, 0.4, 0.6};
    }
    return bounds.inset(-0.15 * bounds.width, -0.15 * bounds.height);
}

} // namespace vasker
