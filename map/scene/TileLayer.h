#pragma once
// The pictures of the ground, each on a quadrilateral in perspective.

#include "map/basemap/TilePyramid.h"

#include <QSGMaterial>
#include <QSGNode>
#include <QSGTexture>

#include <array>
#include <map>
#include <memory>
#include <vector>

class QQuickWindow;

namespace vasker {

/// Where a picture is to be seen: its corners from the top left, clockwise, in item pixels.
struct TileQuad {
    std::shared_ptr<PaintedTile> tile;
    std::array<PerspectivePoint, 4> corners;
    float opacity = 1;
};

class TileMaterial final : public QSGMaterial {
  public:
    TileMaterial();

    QSGTexture* texture = nullptr;
    float opacity = 1;

    [[nodiscard]] QSGMaterialType* type() const override;
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
    [[nodiscard]] int compare(const QSGMaterial* other) const override;
};

class TileLayer final : public QSGNode {
  public:
    TileLayer();
    ~TileLayer() override;

    /// Render thread, while the item's thread waits. Takes the images out of tiles that are new.
    void update(const std::vector<TileQuad>& quads, QQuickWindow& window);

  private:
    struct Quad;
    struct Texture {
        std::weak_ptr<PaintedTile> tile;
        std::unique_ptr<QSGTexture> texture;
    };

    [[nodiscard]] QSGTexture* textureOf(const std::shared_ptr<PaintedTile>& tile,
                                        QQuickWindow& window);

    std::map<const PaintedTile*, Texture> m_textures; ///< as long as their tiles live
    std::vector<std::unique_ptr<Quad>> m_quads;
};

} // namespace vasker
