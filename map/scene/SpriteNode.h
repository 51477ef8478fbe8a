#pragma once
// Draws a SpriteLayer: textured quads on whole device pixels.

#include "map/layers/SpriteLayer.h"

#include <QSGGeometryNode>
#include <QSGTexture>
#include <QSGTextureMaterial>

#include <memory>
#include <vector>

class QQuickWindow;

namespace vasker {

class SpriteNode final : public QSGNode {
  public:
    SpriteNode();
    ~SpriteNode() override;

    /// Render thread, while the item's thread waits. `devicePixels` per logical pixel, of the
    /// screen and of the atlases.
    void update(const SpriteLayer& layer, float devicePixels, QQuickWindow& window);

  private:
    class Sheet;

    std::vector<std::unique_ptr<Sheet>> m_sheets;
};

} // namespace vasker
