#include "map/frame/MapDrawing.h"

#include <QPainter>

namespace vasker {

void MapDrawing::paintBasemap(QPainter& painter) const {
    for (const MapLayer& layer : frame.layers) {
        if (const auto* const background = std::get_if<BackgroundLayer>(&layer)) {
            painter.fillRect(QRectF({}, frame.size), background->color);
        } else if (const auto* const tileLayer = std::get_if<TileLayer>(&layer)) {
            paintTiles(painter, *tileLayer, tiles);
        }
    }
}

void MapDrawing::paintRecords(QPainter& painter) const {
    for (const MapLayer& layer : frame.layers) {
        if (const auto* const lines = std::get_if<LineLayer>(&layer)) {
            paintLines(painter, *lines);
        } else if (const auto* const dots = std::get_if<DotLayer>(&layer)) {
            paintDots(painter, *dots);
        }
    }
    for (const Shape& shape : shapes) {
        shape(painter);
    }
}

} // namespace vasker
