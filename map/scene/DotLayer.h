#pragma once
// Dots: a triangle each, its round edge made by the fragment shader. (Point primitives take five
// times as long in software rendering.)

#include "map/records/RouteLines.h"

#include <QColor>
#include <QSGGeometryNode>
#include <QSGMaterial>

#include <vector>

namespace vasker {

struct Dot {
    float x, y; ///< item pixels
    Rgb color;
};

class DotMaterial final : public QSGMaterial {
  public:
    DotMaterial();

    QColor casing;
    float devicePixels = 1;

    [[nodiscard]] QSGMaterialType* type() const override;
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
    [[nodiscard]] int compare(const QSGMaterial* other) const override;
};

class DotLayer final : public QSGGeometryNode {
  public:
    DotLayer();

    void update(const std::vector<Dot>& dots, const QColor& casing, float devicePixels);

  private:
    QSGGeometry m_geometry;
    DotMaterial m_material;
};

} // namespace vasker
