#pragma once
// Draws a LineLayer.

#include "map/layers/LineLayer.h"
#include "map/scene/LineMaterial.h"

#include <QSGGeometryNode>

#include <memory>

namespace vasker {

class LineNode final : public QSGGeometryNode {
  public:
    LineNode();

    /// Render thread, while the item's thread waits.
    void update(const LineLayer& layer, float devicePixels);

  private:
    QSGGeometry m_geometry;
    LineMaterial m_material;
    std::shared_ptr<const LineStrip> m_strip; ///< that m_geometry was made of
};

} // namespace vasker
