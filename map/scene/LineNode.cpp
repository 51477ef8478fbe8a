#include "map/scene/LineNode.h"

#include <cstring>

namespace vasker {

LineNode::LineNode() : m_geometry(LineMaterial::attributes(), 0) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void LineNode::update(const LineLayer& layer, float devicePixels) {
    if (layer.strip != m_strip) {
        m_strip = layer.strip;
        const std::size_t count = m_strip ? m_strip->size() : 0;
        m_geometry.allocate(static_cast<int>(count));
        if (count > 0) {
            std::memcpy(m_geometry.vertexData(), m_strip->data(), count * sizeof(LineVertex));
        }
        markDirty(DirtyGeometry);
    }
    if (m_strip) {
        m_material.style = layer.style;
        m_material.offset = {static_cast<float>(layer.offset.x),
                             static_cast<float>(layer.offset.y)};
        m_material.devicePixels = devicePixels;
        markDirty(DirtyMaterial);
    }
}

} // namespace vasker
