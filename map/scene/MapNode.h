#pragma once
// The whole map as scene-graph nodes, in drawing order: ground, tiles, routes, dots, names,
// pins.

#include "map/records/PinAtlas.h"
#include "map/scene/DotLayer.h"
#include "map/scene/GroundLayer.h"
#include "map/scene/RouteLayer.h"
#include "map/scene/SpriteLayer.h"
#include "map/scene/TileLayer.h"

#include <QSGNode>

#include <memory>
#include <vector>

class QQuickWindow;

namespace vasker {

/// Sprites with the picture that they are cut from.
struct SpriteSheet {
    QImage image; ///< null: there are no sprites
    std::vector<Sprite> sprites;
};

/// Everything that one frame shows.
struct MapFrame {
    QSizeF size;
    BasemapTheme look = BasemapTheme::light;
    float devicePixels = 1; ///< per logical pixel
    std::vector<TileQuad> tiles;
    RouteStrip routes;
    RouteStrip hoveredRoute;
    RouteStrip selectedRoute;
    std::vector<Dot> dots;
    SpriteSheet names;
    SpriteSheet pins;
};

class MapNode final : public QSGNode {
  public:
    MapNode();

    /// Render thread, while the item's thread waits. Makes textures for `window`.
    void update(const MapFrame& picture, QQuickWindow& window);

  private:
    /// Sprites that are there once there is a picture to cut them from.
    class Sprites {
      public:
        Sprites();
        void update(const SpriteSheet& sheet, float devicePixels, QQuickWindow& window);
        [[nodiscard]] QSGNode* node() noexcept { return &m_place; }

      private:
        QSGNode m_place;
        SpriteLayer m_layer;
        qint64 m_image = 0; ///< cache key of the image
    };

    GroundLayer m_ground;
    TileLayer m_tiles;
    RouteLayer m_routes;
    RouteLayer m_hoveredRoute;
    RouteLayer m_selectedRouteOutline;
    RouteLayer m_selectedRoute;
    DotLayer m_dots;
    Sprites m_names;
    Sprites m_balloons;
};

} // namespace vasker
