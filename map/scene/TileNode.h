#pragma once
// Draws a TileLayer: raster tiles as textures, each on a quadrilateral in perspective.

#include "map/layers/TileLayer.h"

#include <QSGNode>
#include <QSGTexture>

#include <map>
#include <memory>
#include <vector>

class QQuickWindow;

namespace vasker {

class TileNode final : public QSGNode {
  public:
    TileNode();
    ~TileNode() override;

    /// Render thread, while the item's thread waits. Takes the layer's new images.
    void update(TileLayer& layer, QQuickWindow& window);

  private:
    struct Quad;

    std::map<TileNumber, std::unique_ptr<QSGTexture>> m_textures;
    std::vector<std::unique_ptr<Quad>> m_quads;
};

} // namespace vasker
