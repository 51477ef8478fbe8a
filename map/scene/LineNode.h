#pragma once
// Draws a LineLayer: a core of constant width in pixels within a casing, edges smoothed.

#include "map/layers/LineLayer.h"

#include <QSGGeometryNode>

#include <memory>

namespace vasker {

class LineNode final : public QSGGeometryNode {
  public:
    LineNode();

    /// Render thread, while the item's thread waits. `devicePixels` per item pixel.
    void update(const LineLayer& layer, float devicePixels);

  private:
    QSGGeometry m_geometry;
    std::shared_ptr<const LineStrip> m_strip; ///< that m_geometry was made of
};

} // namespace vasker
