#pragma once
// The whole map as scene-graph nodes, in drawing order: ground, routes, the selected route, dots,
// balloons.

#include "map/scene/BalloonLayer.h"
#include "map/scene/BalloonPicture.h"
#include "map/scene/DotLayer.h"
#include "map/scene/GroundLayer.h"
#include "map/scene/RouteLayer.h"

#include <QSGNode>

#include <memory>
#include <vector>

class QQuickWindow;

namespace vasker {

/// Everything that one frame shows.
struct MapPicture {
    Camera camera{canadaOverview, {1, 1}};
    ColorScheme scheme = ColorScheme::light;
    float devicePixels = 1; ///< per logical pixel
    std::shared_ptr<const RouteContent> routes;
    std::shared_ptr<const RouteContent> selectedRoute;
    std::vector<Dot> dots;
    std::vector<BalloonSprite> balloons;
    std::shared_ptr<const BalloonPicture> balloonPicture; ///< null: there are no balloons
};

class MapNode final : public QSGNode {
  public:
    MapNode();

    /// Render thread, while the item's thread waits. Makes textures for `window`.
    void update(const MapPicture& picture, QQuickWindow& window);

  private:
    GroundLayer m_ground;
    RouteLayer m_routes{LineEnds::square};
    RouteLayer m_selectedRoute{LineEnds::round};
    DotLayer m_dots;
    BalloonLayer m_balloons;
    std::shared_ptr<const BalloonPicture> m_balloonPicture;
};

} // namespace vasker
