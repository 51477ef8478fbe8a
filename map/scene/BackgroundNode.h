#pragma once
// Draws a BackgroundLayer.

#include "map/layers/BackgroundLayer.h"

#include <QSGFlatColorMaterial>
#include <QSGGeometryNode>
#include <QSizeF>

namespace vasker {

class BackgroundNode final : public QSGGeometryNode {
  public:
    BackgroundNode();

    void update(const BackgroundLayer& layer, QSizeF size);

  private:
    QSGGeometry m_geometry;
    QSGFlatColorMaterial m_material;
};

} // namespace vasker
