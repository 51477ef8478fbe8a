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
    const LineStrip& strip = layer.strip;
    if (strip.empty() && m_geometry.vertexCount() == 0) {
        return;
    }
    m_geometry.allocate(static_cast<int>(strip.size()));
    if (!strip.empty()) {
        std::memcpy(m_geometry.vertexData(), strip.data(), strip.size() * sizeof(LineVertex));
    }
    m_material.style = layer.style;
    m_material.devicePixels = devicePixels;
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace vasker
