#pragma once
// The plain ground under the tiles, for where there are none: beyond the poles' limit.

#include <QColor>
#include <QSGFlatColorMaterial>
#include <QSGGeometryNode>
#include <QSizeF>

namespace vasker {

class GroundLayer final : public QSGGeometryNode {
  public:
    GroundLayer();

    void update(QSizeF size, const QColor& color);

  private:
    QSGGeometry m_geometry;
    QSGFlatColorMaterial m_material;
};

} // namespace vasker
