#pragma once
// Draws a RouteMesh: a core of constant width in pixels within a casing, edges smoothed.

#include <QColor>
#include <QSGGeometry>
#include <QSGMaterial>
#include <QVector2D>

#include <optional>

namespace vasker {

/// Widths in logical pixels.
struct RouteStyle {
    float coreWidth = 2;
    float casingWidth = 1; ///< on either side of the core
    QColor casing;
    std::optional<QColor> ink; ///< instead of each line's own colour
    friend bool operator==(const RouteStyle&, const RouteStyle&) = default;
};

class RouteMaterial final : public QSGMaterial {
  public:
    RouteMaterial();

    /// The vertex format of RouteMesh.
    static const QSGGeometry::AttributeSet& attributes();

    RouteStyle style;
    float scale = 1;        ///< item pixels per pixel of the mesh
    QVector2D origin;       ///< of the mesh, in item pixels
    float devicePixels = 1; ///< device pixels per item pixel

    [[nodiscard]] QSGMaterialType* type() const override;
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
    [[nodiscard]] int compare(const QSGMaterial* other) const override;
};

} // namespace vasker
