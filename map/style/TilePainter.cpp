#include "map/style/BasemapStyle.h"
#include "map/style/TilePicture.h"
#include "map/style/VectorTilePainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

constexpr double maximumDevicePixels = 4096; ///< of a tile's side

/// The piece's part that the picture shows, with two pixels around it where there are any: the
/// smoothing looks beyond the picture's edge, as the neighbour's does.
void paintImagery(QPainter& painter, const ImageryPiece& piece, const TileRequest& request) {
    if (piece.image.isNull()) {
        return;
    }
    const PixelRect picture = request.pixels();
    const MapRect bounds = piece.key.bounds();
    const double scale = request.devicePixelsPerMapPoint;
    const QPointF corner(bounds.x * scale - static_cast<double>(picture.x),
                         bounds.y * scale - static_cast<double>(picture.y));
    // Device pixels per pixel of the photograph.
    const double across = bounds.width * scale / piece.image.width();
    const double down = bounds.height * scale / piece.image.height();
    const QRectF shown(
        -corner.x() / across, -corner.y() / down, picture.width / across, picture.height / down);
    const QRectF source =
        shown.adjusted(-2, -2, 2, 2).intersected(QRectF(QPointF(0, 0), piece.image.size()));
    if (!source.isEmpty()) {
        painter.drawImage(QRectF(corner.x() + source.x() * across,
                                 corner.y() + source.y() * down,
                                 source.width() * across,
                                 source.height() * down),
                          piece.image,
                          source);
    }
}

/// Whatever a caller asks, a picture that can be made.
TileRequest sane(TileRequest request) {
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

QImage paintTile(const TileData& ground, const TileRequest& request) {
    const TileRequest sound = sane(request);
    const bool asksForImagery =
        sound.look == BasemapTheme::satellite || sound.look == BasemapTheme::hybrid;
    const bool isDrawn = !asksForImagery || !ground.isPhotographed(sound.key);
    const BasemapTheme dress = asksForImagery ? BasemapTheme::dark : sound.look;

    const PixelRect pixels = sound.pixels();
    QImage picture(pixels.width, pixels.height, QImage::Format_RGB32);
    picture.fill(basemapColors(dress).land);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDrawn) {
        paintVectorTile(painter, ground, sound, dress);
    }
    if (asksForImagery && !ground.imagery.empty()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        for (const ImageryPiece& piece : ground.imagery) {
            paintImagery(painter, piece, sound);
        }
        if (sound.look == BasemapTheme::hybrid) {
            paintVectorTile(painter, ground, sound, BasemapTheme::hybrid);
        }
    }
    if (sound.ink) {
        const double scale = sound.devicePixelsPerMapPoint;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(Qt::NoPen);
        sound.ink->paint(painter,
                         {static_cast<double>(pixels.x) / scale,
                          static_cast<double>(pixels.y) / scale,
                          pixels.width / scale,
                          pixels.height / scale},
                         scale);
    }
    return picture;
}

} // namespace vasker
