#include "map/scene/GroundLayer.h"

#include <cmath>

namespace vasker {

namespace {

QSGGeometry::Point2D* addRect(QSGGeometry::Point2D* vertex, const QRectF& rect) {
    const auto left = static_cast<float>(rect.left());
    const auto right = static_cast<float>(rect.right());
    const auto top = static_cast<float>(rect.top());
    const auto bottom = static_cast<float>(rect.bottom());
    (vertex++)->set(left, top);
    (vertex++)->set(right, top);
    (vertex++)->set(left, bottom);
    (vertex++)->set(left, bottom);
    (vertex++)->set(right, top);
    (vertex++)->set(right, bottom);
    return vertex;
}

} // namespace

GroundLayer::GroundLayer() {
    attach(m_ground);
    attach(m_lines);
}

void GroundLayer::attach(Part& part) {
    part.geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    part.node.setGeometry(&part.geometry);
    part.node.setMaterial(&part.material);
    part.node.setFlag(OwnedByParent, false);
    appendChildNode(&part.node);
}

void GroundLayer::update(QSizeF size,
                         const Graticule& lines,
                         const QColor& ground,
                         const QColor& line,
                         float devicePixels) {
    m_ground.geometry.allocate(6);
    addRect(m_ground.geometry.vertexDataAsPoint2D(), QRectF(QPointF(0, 0), size));
    m_ground.material.setColor(ground);

    const double width = 1 / static_cast<double>(devicePixels);
    const auto snapped = [width](double position) { return std::round(position / width) * width; };
    m_lines.geometry.allocate(
        static_cast<int>(6 * (lines.meridians.size() + lines.parallels.size())));
    auto* vertex = m_lines.geometry.vertexDataAsPoint2D();
    for (const double x : lines.meridians) {
        vertex = addRect(vertex, QRectF(snapped(x), 0, width, size.height()));
    }
    for (const double y : lines.parallels) {
        vertex = addRect(vertex, QRectF(0, snapped(y), size.width(), width));
    }
    m_lines.material.setColor(line);
    for (Part* part : {&m_ground, &m_lines}) {
        part->node.markDirty(DirtyGeometry | DirtyMaterial);
    }
}

} // namespace vasker
