#include "map/scene/MapNode.h"

#include "map/geometry/Graticule.h"
#include "map/scene/MapColors.h"

#include <QQuickWindow>

namespace vasker {

namespace {

constexpr float routeWidth = 2;
constexpr float routeCasing = 1;
constexpr float selectedRouteWidth = 5;
constexpr float selectedRouteCasing = 2;

} // namespace

MapNode::MapNode() {
    for (QSGNode* layer : {static_cast<QSGNode*>(&m_ground),
                           static_cast<QSGNode*>(&m_routes),
                           static_cast<QSGNode*>(&m_selectedRoute),
                           static_cast<QSGNode*>(&m_dots),
                           static_cast<QSGNode*>(&m_balloons)}) {
        layer->setFlag(OwnedByParent, false);
    }
    appendChildNode(&m_ground);
    appendChildNode(&m_routes);
    appendChildNode(&m_selectedRoute);
    appendChildNode(&m_dots);
}

void MapNode::update(const MapPicture& picture, QQuickWindow& window) {
    const MapColors& colors = mapColors(picture.scheme);
    const Viewport viewport = picture.camera.viewport();
    m_ground.update({viewport.width, viewport.height},
                    graticule(picture.camera),
                    colors.ground,
                    colors.graticule,
                    picture.devicePixels);
    m_routes.update(picture.routes,
                    {.coreWidth = routeWidth,
                     .casingWidth = routeCasing,
                     .casing = colors.routeCasing,
                     .ink = {}},
                    picture.camera,
                    picture.devicePixels);
    m_selectedRoute.update(picture.selectedRoute,
                           {.coreWidth = selectedRouteWidth,
                            .casingWidth = selectedRouteCasing,
                            .casing = colors.casing,
                            .ink = colorValue(PaletteColor::blue, picture.scheme)},
                           picture.camera,
                           picture.devicePixels);
    m_dots.update(picture.dots, colors.casing, picture.devicePixels);

    if (picture.balloonPicture != m_balloonPicture) {
        m_balloonPicture = picture.balloonPicture;
        if (m_balloonPicture) {
            m_balloons.setTexture(std::unique_ptr<QSGTexture>(window.createTextureFromImage(
                m_balloonPicture->image(), QQuickWindow::TextureHasAlphaChannel)));
        }
    }
    if (m_balloonPicture && m_balloons.parent() == nullptr) {
        appendChildNode(&m_balloons);
    }
    if (m_balloonPicture) {
        m_balloons.update(picture.balloons, picture.devicePixels);
    }
}

} // namespace vasker
