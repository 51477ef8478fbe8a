#include "map/style/TilePainter.h"

#include "map/style/ImagePool.h"
#include "map/style/MapTheme.h"
#include "map/style/VectorTilePainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vasker {

namespace {

constexpr double maximumDevicePixels = 4096; ///< of a tile's side

/// Draws the part of `tile` that the raster tile shows, with two pixels around it where there are
/// any: the smoothing looks beyond the edge, as the neighbour's does.
void paintImagery(QPainter& painter, const ImageryTile& tile, const TileRequest& request) {
    if (tile.image.isNull()) {
        return;
    }
    const PixelRect pixels = request.pixels();
    const MapRect bounds = tile.key.bounds();
    const double scale = request.devicePixelsPerMapPoint;
    // Device pixels per pixel of the imagery.
    const double across = bounds.width * scale / (tile.image.width() - 2 * tile.margin);
    const double down = bounds.height * scale / (tile.image.height() - 2 * tile.margin);
    const QPointF corner(bounds.x * scale - static_cast<double>(pixels.x) - tile.margin * across,
                         bounds.y * scale - static_cast<double>(pixels.y) - tile.margin * down);
    const QRectF shown(
        -corner.x() / across, -corner.y() / down, pixels.width / across, pixels.height / down);
    const QRectF source =
        shown.adjusted(-2, -2, 2, 2).intersected(QRectF(QPointF(0, 0), tile.image.size()));
    if (!source.isEmpty()) {
        // Whole pixels: one that is covered in part would show what lies below, as a seam.
        const QRectF target(corner.x() + source.x() * across,
                            corner.y() + source.y() * down,
                            source.width() * across,
                            source.height() * down);
        painter.drawImage(QRectF(target.toAlignedRect()), tile.image, source);
    }
}

TileRequest inRange(TileRequest request) {
    const double side = request.key.side();
    if (!(request.devicePixelsPerPixel >= 0.1 && request.devicePixelsPerPixel <= 16)) {
        request.devicePixelsPerPixel = 1;
    }
    if (std::isnan(request.devicePixelsPerMapPoint)) {
        request.devicePixelsPerMapPoint = tilePixels / side;
    }
    request.devicePixelsPerMapPoint =
        std::clamp(request.devicePixelsPerMapPoint, 1 / side, maximumDevicePixels / side);
    return request;
}

} // namespace

QImage paintTile(const TileData& data, const TileRequest& requested) {
    const TileRequest request = inRange(requested);
    const bool hasImagery = showsImagery(request.theme);
    const BasemapTheme drawn = withoutImagery(request.theme);

    const PixelRect pixels = request.pixels();
    QImage image = pooledImage(pixels.width, pixels.height, QImage::Format_RGB32);
    image.fill(mapTheme(drawn).land);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintBudget budget(outlineBudget * std::max(pixels.width, pixels.height));
    if (!hasImagery || !data.hasFullImagery(request.key)) {
        paintVectorTile(painter, data, request, drawn, styleLayers(), budget);
    }
    if (hasImagery && !data.imagery.empty()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        for (const ImageryTile& tile : data.imagery) {
            paintImagery(painter, tile, request);
            if (tile.needsWaters(request.key)) {
                paintVectorTile(
                    painter, data, request, BasemapTheme::satellite, waterLayers(), budget);
            }
        }
        if (showsVectorTiles(request.theme)) {
            paintVectorTile(painter, data, request, request.theme, styleLayers(), budget);
        }
    }
    painter.end(); // of an image that is being painted, QImage copies the pixels
    return budget.isSpent() ? QImage() : std::move(image);
}

} // namespace vasker
