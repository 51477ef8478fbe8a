#pragma once
// Dots as point primitives: one vertex each, its round edge made by the fragment shader.

#include <QColor>
#include <QSGGeometryNode>
#include <QSGMaterial>

#include <array>
#include <cstdint>
#include <vector>

namespace vasker {

/// Radii in logical pixels.
inline constexpr float dotRadius = 3.25F;
inline constexpr float dotCasing = 1;

struct DotVertex {
    float x, y; ///< item pixels
    std::array<std::uint8_t, 4> color;
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

    void update(const std::vector<DotVertex>& dots, const QColor& casing, float devicePixels);

  private:
    QSGGeometry m_geometry;
    DotMaterial m_material;
};

} // namespace vasker
