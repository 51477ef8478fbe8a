#pragma once
// Draws a LineLayer.

#include "map/layers/LineLayer.h"
#include "map/scene/LineMaterial.h"

#include <QSGGeometryNode>

namespace vasker {

class LineNode final : public QSGGeometryNode {
  public:
    LineNode();

    /// Render thread, while the item's thread waits.
    void update(const LineLayer& layer, float devicePixels);

  private:
    QSGGeometry m_geometry;
    LineMaterial m_material;
};

} // namespace vasker
