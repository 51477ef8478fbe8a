#pragma once
// A small picture of a map for tests: green background, a red dot, a label, texts below.

#include "app/saving/MapPicture.h"
#include "map/labels/LabelText.h"

#include <QPainter>

namespace vasker {

inline const QColor paper(250, 250, 250);
inline const QColor backgroundColor(10, 200, 30);
inline const QColor dotColor(200, 10, 20);
constexpr double mapWidth = 400;
constexpr double mapHeight = 300;

inline MapPicture makePicture(double scale = 1) {
    MapDrawing drawing;
    drawing.frame.size = {mapWidth, mapHeight + 40}; // its end is covered
    drawing.frame.devicePixels = scale;
    drawing.frame.background = backgroundColor;
    drawing.frame.layers = {DotLayer{{{100, 100, rgbOf(dotColor)}}, 8, 1, Qt::white}};
    drawing.shapes = {[](QPainter& painter) {
        const Label label{QStringLiteral("Grande Prairie"), LabelStyle::city, BasemapTheme::light};
        painter.save();
        painter.translate(150, 150);
        paintLabel(painter, setText(label.text, label.style, 1, painter.device()), label, 1);
        painter.restore();
    }};
    return {.map = std::make_shared<const MapDrawing>(std::move(drawing)),
            .mapSize = {mapWidth, mapHeight},
            .scale = scale,
            .barText = {},
            .mapText = Qt::black,
            .mapHalo = Qt::white,
            .north = Qt::magenta,
            .title = QStringLiteral("A title"),
            .notes = {QStringLiteral("A note."), QString(), QStringLiteral("Another note.")},
            .background = paper,
            .text = Qt::black,
            .quietText = Qt::black};
}

} // namespace vasker
