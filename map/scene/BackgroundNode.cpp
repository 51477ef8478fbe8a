#include "map/scene/BackgroundNode.h"

namespace vasker {

BackgroundNode::BackgroundNode() : m_geometry(QSGGeometry::defaultAttributes_Point2D(), 4) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void BackgroundNode::update(const BackgroundLayer& layer, QSizeF size) {
    QSGGeometry::updateRectGeometry(&m_geometry, QRectF(QPointF(0, 0), size));
    m_material.setColor(layer.color);
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace vasker
