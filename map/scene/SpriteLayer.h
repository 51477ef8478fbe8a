#pragma once
// Upright pictures such as pins and names: textured quads, cut from one picture and set on
// whole device pixels.

#include "map/geometry/Camera.h"

#include <QImage>
#include <QRectF>
#include <QSGGeometryNode>
#include <QSGTexture>
#include <QSGTextureMaterial>

#include <memory>
#include <vector>

class QQuickWindow;

namespace vasker {

struct Sprite {
    ScreenPoint corner; ///< top-left, in item pixels
    QRectF cut;         ///< in the picture, in logical pixels
};

class SpriteLayer final : public QSGGeometryNode {
  public:
    SpriteLayer();

    /// Cuts from `image` from now on: premultiplied, not null.
    void setImage(const QImage& image, QQuickWindow& window);

    /// Needs an image. `devicePixels` per logical pixel, of the screen and of the image.
    void update(const std::vector<Sprite>& sprites, float devicePixels);

  private:
    QSGGeometry m_geometry;
    QSGTextureMaterial m_material;
    std::unique_ptr<QSGTexture> m_texture;
};

} // namespace vasker
