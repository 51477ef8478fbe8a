#pragma once
// Draws a DotLayer: a triangle for each dot, its round edge made by the fragment shader. (Point
// primitives take five times as long in software rendering.)

#include "map/layers/DotLayer.h"

#include <QSGGeometryNode>

namespace vasker {

class DotNode final : public QSGGeometryNode {
  public:
    DotNode();

    /// Render thread, while the item's thread waits. `devicePixels` per item pixel.
    void update(const DotLayer& layer, float devicePixels);

  private:
    QSGGeometry m_geometry;
};

} // namespace vasker
