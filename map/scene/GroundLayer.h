#pragma once
// The plain ground with its graticule.

#include "map/geometry/Graticule.h"

#include <QColor>
#include <QSGFlatColorMaterial>
#include <QSGGeometryNode>
#include <QSizeF>

namespace vasker {

class GroundLayer final : public QSGNode {
  public:
    GroundLayer();

    /// Lines are one device pixel wide.
    void update(QSizeF size,
                const Graticule& lines,
                const QColor& ground,
                const QColor& line,
                float devicePixels);

  private:
    struct Part {
        QSGGeometry geometry{QSGGeometry::defaultAttributes_Point2D(), 0};
        QSGFlatColorMaterial material;
        QSGGeometryNode node;
    };
    void attach(Part& part);

    Part m_ground;
    Part m_lines;
};

} // namespace vasker
