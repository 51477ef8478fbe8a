#pragma once
// The routes of one style: a strip that is made anew for each frame.

#include "map/records/RouteStrip.h"
#include "map/scene/RouteMaterial.h"

#include <QSGGeometryNode>

namespace vasker {

class RouteLayer final : public QSGGeometryNode {
  public:
    RouteLayer();

    /// Render thread, while the item's thread waits.
    void update(const RouteStrip& strip, const RouteStyle& style, float devicePixels);

  private:
    QSGGeometry m_geometry;
    RouteMaterial m_material;
};

} // namespace vasker
