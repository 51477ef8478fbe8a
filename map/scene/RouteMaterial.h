#pragma once
// Draws a RouteStrip: a core of constant width in pixels within a casing, edges smoothed.

#include <QColor>
#include <QSGGeometry>
#include <QSGMaterial>

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

    /// The vertex format of RouteStrip.
    static const QSGGeometry::AttributeSet& attributes();

    RouteStyle style;
    float devicePixels = 1; ///< device pixels per item pixel

    [[nodiscard]] QSGMaterialType* type() const override;
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
    [[nodiscard]] int compare(const QSGMaterial* other) const override;
};

} // namespace vasker
