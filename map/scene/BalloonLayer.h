#pragma once
// Balloons as textured quads, cut from one picture and set on whole device pixels.

#include "map/geometry/Camera.h"

#include <QRectF>
#include <QSGGeometryNode>
#include <QSGTexture>
#include <QSGTextureMaterial>

#include <memory>
#include <vector>

namespace vasker {

struct BalloonSprite {
    ScreenPoint corner; ///< top-left of the sprite, in item pixels
    QRectF cut;         ///< in the picture, in logical pixels
};

class BalloonLayer final : public QSGGeometryNode {
  public:
    BalloonLayer();

    /// Takes the texture of the picture that the sprites are cut from.
    void setTexture(std::unique_ptr<QSGTexture> texture);

    /// Needs a texture. `devicePixels` is the picture's density too.
    void update(const std::vector<BalloonSprite>& sprites, float devicePixels);

  private:
    QSGGeometry m_geometry;
    QSGTextureMaterial m_material;
    std::unique_ptr<QSGTexture> m_texture;
};

} // namespace vasker
