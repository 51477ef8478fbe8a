#include "map/basemap/TileJob.h"

#include "map/labels/PlaceLabels.h"
#include "map/style/ImagePool.h"
#include "map/style/TilePainter.h"

#include <utility>

namespace vasker {

TileJob::Result TileJob::run(const std::stop_token& stop) && {
    Result result{std::move(bare), {}};
    RasterTile& tile = result.tile;
    if (tile.basemap.isNull()) {
        tile.key = request.key;
        tile.devicePixelsPerMapPoint = request.devicePixelsPerMapPoint;
        tile.pixels = request.pixels();
        // A vector tile that would take too long to paint is one that cannot be decoded: the next
        // ancestor takes its place. There are no more of them than zooms.
        ProvidedTile found;
        for (int tries = 0; tile.basemap.isNull() && tries <= request.key.zoom + 1; ++tries) {
            if (found.data.vector) {
                provider->refuseVector(found);
            }
            auto undecodable = std::move(found.undecodable);
            found = provider->read(request.key, request.theme);
            found.undecodable.insert(
                found.undecodable.end(), undecodable.begin(), undecodable.end());
            if (stop.stop_requested()) {
                return result;
            }
            tile.basemap = paintTile(found.data, request);
        }
        tile.lacksImagery = showsImagery(request.theme) && !found.data.hasFullImagery(request.key);
        tile.lacksSharperImagery = found.lacksSharperImagery;
        if (showsVectorTiles(request.theme) || tile.lacksImagery) {
            tile.labels = placeLabels(found.data, request, language);
        }
        tile.attributions = std::move(found.attributions);
        result.undecodable = std::move(found.undecodable);
    }
    if (!overlay) {
        tile.image = std::exchange(tile.basemap, QImage());
    } else if (!stop.stop_requested()) {
        tile.image = pooledCopy(tile.basemap);
        overlay->paint(tile.image,
                       tile.pixels.bounds(tile.devicePixelsPerMapPoint),
                       tile.devicePixelsPerMapPoint);
    }
    return result;
}

} // namespace vasker
