#pragma once
// Draws a TileLayer: raster tiles as textures, each on a quadrilateral in perspective.

#include "map/layers/TileLayer.h"

#include <QSGMaterial>
#include <QSGNode>
#include <QSGTexture>

#include <map>
#include <memory>
#include <vector>

class QQuickWindow;

namespace vasker {

class TileMaterial final : public QSGMaterial {
  public:
    TileMaterial();

    QSGTexture* texture = nullptr;
    float opacity = 1;

    [[nodiscard]] QSGMaterialType* type() const override;
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
    [[nodiscard]] int compare(const QSGMaterial* other) const override;
};

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
