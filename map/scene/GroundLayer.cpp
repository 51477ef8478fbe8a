#include "map/scene/GroundLayer.h"

namespace vasker {

GroundLayer::GroundLayer() : m_geometry(QSGGeometry::defaultAttributes_Point2D(), 4) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void GroundLayer::update(QSizeF size, const QColor& color) {
    QSGGeometry::updateRectGeometry(&m_geometry, QRectF(QPointF(0, 0), size));
    m_material.setColor(color);
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace vasker
