#include "map/frame/MapDrawing.h"

#include <QPainter>

namespace vasker {

void MapDrawing::paintBasemap(QPainter& painter) const {
    painter.fillRect(QRectF({}, frame.size), frame.background);
    paintTiles(painter, frame.tiles, tiles);
}

void MapDrawing::paintRecords(QPainter& painter) const {
    for (const MapLayer& layer : frame.layers) {
        if (!std::holds_alternative<SpriteLayer>(layer)) {
            paintLayer(painter, layer, frame.devicePixels);
        }
    }
    for (const Shape& shape : shapes) {
        shape(painter);
    }
}

} // namespace vasker
