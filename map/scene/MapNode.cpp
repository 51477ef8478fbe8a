#include "map/scene/MapNode.h"

#include "map/records/RouteStyle.h"
#include "map/style/MapColors.h"

#include <QQuickWindow>

namespace vasker {

namespace {

constexpr float outerLineWidth = 0.8F;

RouteStyle styleOf(double width, double casing, const QColor& casingColor) {
    return {.coreWidth = static_cast<float>(width),
            .casingWidth = static_cast<float>(casing),
            .casing = casingColor,
            .ink = {}};
}

} // namespace

MapNode::Sprites::Sprites() {
    m_place.setFlag(OwnedByParent, false);
    m_layer.setFlag(OwnedByParent, false);
}

void MapNode::Sprites::update(const SpriteSheet& sheet, float devicePixels, QQuickWindow& window) {
    if (sheet.image.isNull()) {
        return;
    }
    if (sheet.image.cacheKey() != m_image) {
        m_image = sheet.image.cacheKey();
        m_layer.setImage(sheet.image, window);
    }
    if (m_layer.parent() == nullptr) {
        m_place.appendChildNode(&m_layer);
    }
    m_layer.update(sheet.sprites, devicePixels);
}

MapNode::MapNode() {
    for (QSGNode* layer : {static_cast<QSGNode*>(&m_ground),
                           static_cast<QSGNode*>(&m_tiles),
                           static_cast<QSGNode*>(&m_routes),
                           static_cast<QSGNode*>(&m_hoveredRoute),
                           static_cast<QSGNode*>(&m_selectedRouteOutline),
                           static_cast<QSGNode*>(&m_selectedRoute),
                           static_cast<QSGNode*>(&m_dots),
                           m_names.node(),
                           m_balloons.node()}) {
        layer->setFlag(OwnedByParent, false);
        appendChildNode(layer);
    }
}

void MapNode::update(const MapFrame& picture, QQuickWindow& window) {
    const MapColors& colors = mapColors(picture.look);
    const QColor blue = colorValue(PaletteColor::blue, colors.records);
    const float density = picture.devicePixels;
    m_ground.update(picture.size, colors.beyond);
    m_tiles.update(picture.tiles, window);
    m_routes.update(picture.routes, styleOf(routeWidth, routeCasing, colors.routeCasing), density);
    m_hoveredRoute.update(
        picture.hoveredRoute, styleOf(routeWidth, hoveredRouteCasing, blue), density);

    RouteStyle selected = styleOf(selectedRouteWidth, selectedRouteCasing, colors.casing);
    selected.ink = blue;
    RouteStyle outline = selected;
    outline.casingWidth += outerLineWidth;
    outline.casing = colors.outerLine;
    m_selectedRouteOutline.update(
        colors.outerLine.alpha() > 0 ? picture.selectedRoute : RouteStrip(), outline, density);
    m_selectedRoute.update(picture.selectedRoute, selected, density);

    m_dots.update(picture.dots, colors.casing, density);
    m_names.update(picture.names, density, window);
    m_balloons.update(picture.pins, density, window);
}

} // namespace vasker
