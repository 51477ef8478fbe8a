#pragma once
// Draws a LineStrip: a core of constant width in pixels within a casing, edges smoothed.

#include "map/layers/LineLayer.h"

#include <QSGGeometry>
#include <QSGMaterial>
#include <QVector2D>

namespace vasker {

class LineMaterial final : public QSGMaterial {
  public:
    LineMaterial();

    /// The vertex format of LineStrip.
    static const QSGGeometry::AttributeSet& attributes();

    LineStyle style;
    QVector2D offset;       ///< of the strip, in item pixels
    float devicePixels = 1; ///< device pixels per item pixel

    [[nodiscard]] QSGMaterialType* type() const override;
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
    [[nodiscard]] int compare(const QSGMaterial* other) const override;
};

} // namespace vasker
