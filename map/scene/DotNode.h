#pragma once
// Draws a DotLayer: a triangle for each dot, its round edge made by the fragment shader. (Point
// primitives take five times as long in software rendering.)

#include "map/layers/DotLayer.h"

#include <QColor>
#include <QSGGeometryNode>
#include <QSGMaterial>

namespace vasker {

class DotMaterial final : public QSGMaterial {
  public:
    DotMaterial();

    float radius = 1;      ///< item pixels
    float casingWidth = 0; ///< item pixels
    QColor casing;
    float devicePixels = 1; ///< per item pixel

    [[nodiscard]] QSGMaterialType* type() const override;
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
    [[nodiscard]] int compare(const QSGMaterial* other) const override;
};

class DotNode final : public QSGGeometryNode {
  public:
    DotNode();

    void update(const DotLayer& layer, float devicePixels);

  private:
    QSGGeometry m_geometry;
    DotMaterial m_material;
};

} // namespace vasker
