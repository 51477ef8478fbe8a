#pragma once
// A frame of the map without shaders: one image, painted anew for each frame.

#include "map/frame/LayerPainting.h"
#include "map/scene/MapNode.h"

#include <QSGImageNode>

#include <array>
#include <memory>

namespace vasker {

class PaintedMapNode final : public MapNode {
  public:
    explicit PaintedMapNode(const QQuickWindow& window);

    void update(MapFrame& frame, QQuickWindow& window) override;

  private:
    TileImages m_tiles;
    /// In turns: the other one is on the screen, and shared with its texture.
    std::array<QImage, 2> m_images;
    std::unique_ptr<QSGImageNode> m_shown; ///< a child once it has a texture
};

} // namespace vasker
