#include "map/scene/RouteLayer.h"

#include <cstring>

namespace vasker {

RouteLayer::RouteLayer() : m_geometry(RouteMaterial::attributes(), 0) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void RouteLayer::update(const RouteStrip& strip, const RouteStyle& style, float devicePixels) {
    if (strip.empty() && m_geometry.vertexCount() == 0) {
        return;
    }
    m_geometry.allocate(static_cast<int>(strip.size()));
    if (!strip.empty()) {
        std::memcpy(m_geometry.vertexData(), strip.data(), strip.size() * sizeof(RouteVertex));
    }
    m_material.style = style;
    m_material.devicePixels = devicePixels;
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace vasker
