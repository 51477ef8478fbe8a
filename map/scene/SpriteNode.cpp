#include "map/scene/SpriteNode.h"

#include <QQuickWindow>

#include <cmath>

namespace vasker {

/// The sprites of one atlas. Has a texture as long as it is a child.
class SpriteNode::Sheet final : public QSGGeometryNode {
  public:
    Sheet() : m_geometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 0, 0) {
        m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
        m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
        m_material.setFiltering(QSGTexture::Nearest);
        m_material.setFlag(QSGMaterial::Blending);
        setGeometry(&m_geometry);
        setMaterial(&m_material);
        setFlag(OwnedByParent, false);
    }

    void update(const SpriteSheet& sheet, float devicePixels, QQuickWindow& window) {
        if (sheet.atlas.cacheKey() != m_atlas) {
            m_atlas = sheet.atlas.cacheKey();
            m_texture.reset(
                window.createTextureFromImage(sheet.atlas, QQuickWindow::TextureHasAlphaChannel));
            m_material.setTexture(m_texture.get());
            markDirty(DirtyMaterial);
        }
        const auto count = static_cast<int>(sheet.sprites.size());
        m_geometry.allocate(4 * count, 6 * count);
        auto* vertex = m_geometry.vertexDataAsTexturedPoint2D();
        auto* index = m_geometry.indexDataAsUShort();
        const QSizeF size = QSizeF(m_texture->textureSize()) / static_cast<qreal>(devicePixels);
        const auto snapped = [devicePixels](double position) {
            return std::round(static_cast<float>(position) * devicePixels) / devicePixels;
        };
        int first = 0;
        for (const Sprite& sprite : sheet.sprites) {
            const float left = snapped(sprite.corner.x);
            const float top = snapped(sprite.corner.y);
            const float right = left + static_cast<float>(sprite.region.width());
            const float bottom = top + static_cast<float>(sprite.region.height());
            const auto u0 = static_cast<float>(sprite.region.left() / size.width());
            const auto u1 = static_cast<float>(sprite.region.right() / size.width());
            const auto v0 = static_cast<float>(sprite.region.top() / size.height());
            const auto v1 = static_cast<float>(sprite.region.bottom() / size.height());
            (vertex++)->set(left, top, u0, v0);
            (vertex++)->set(right, top, u1, v0);
            (vertex++)->set(left, bottom, u0, v1);
            (vertex++)->set(right, bottom, u1, v1);
            for (const int corner : {0, 1, 2, 2, 1, 3}) {
                *index++ = static_cast<quint16>(first + corner);
            }
            first += 4;
        }
        markDirty(DirtyGeometry);
    }

  private:
    QSGGeometry m_geometry;
    QSGTextureMaterial m_material;
    std::unique_ptr<QSGTexture> m_texture;
    qint64 m_atlas = 0; ///< cache key of the image that the texture was made of
};

SpriteNode::SpriteNode() = default;

SpriteNode::~SpriteNode() = default;

void SpriteNode::update(const SpriteLayer& layer, float devicePixels, QQuickWindow& window) {
    while (m_sheets.size() < layer.sheets.size()) {
        m_sheets.push_back(std::make_unique<Sheet>());
    }
    for (std::size_t i = 0; i < m_sheets.size(); ++i) {
        Sheet& node = *m_sheets[i];
        const bool isShown = i < layer.sheets.size() && !layer.sheets[i].sprites.empty() &&
                             !layer.sheets[i].atlas.isNull();
        if (isShown) {
            node.update(layer.sheets[i], devicePixels, window);
        }
        if (isShown && node.parent() == nullptr) {
            appendChildNode(&node);
        } else if (!isShown && node.parent() != nullptr) {
            removeChildNode(&node);
        }
    }
}

} // namespace vasker
