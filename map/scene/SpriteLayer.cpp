#include "map/scene/SpriteLayer.h"

#include <QQuickWindow>

#include <cmath>

namespace vasker {

SpriteLayer::SpriteLayer() : m_geometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 0, 0) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
    m_material.setFiltering(QSGTexture::Nearest);
    m_material.setFlag(QSGMaterial::Blending);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void SpriteLayer::setImage(const QImage& image, QQuickWindow& window) {
    m_texture.reset(window.createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
    m_material.setTexture(m_texture.get());
    markDirty(DirtyMaterial);
}

void SpriteLayer::update(const std::vector<Sprite>& sprites, float devicePixels) {
    const auto count = static_cast<int>(sprites.size());
    m_geometry.allocate(4 * count, 6 * count);
    auto* vertex = m_geometry.vertexDataAsTexturedPoint2D();
    auto* index = m_geometry.indexDataAsUShort();
    const QSizeF picture = QSizeF(m_texture->textureSize()) / static_cast<qreal>(devicePixels);
    int first = 0;
    for (const Sprite& sprite : sprites) {
        const auto snapped = [devicePixels](double position) {
            return std::round(static_cast<float>(position) * devicePixels) / devicePixels;
        };
        const float left = snapped(sprite.corner.x);
        const float top = snapped(sprite.corner.y);
        const float right = left + static_cast<float>(sprite.cut.width());
        const float bottom = top + static_cast<float>(sprite.cut.height());
        const auto u0 = static_cast<float>(sprite.cut.left() / picture.width());
        const auto u1 = static_cast<float>(sprite.cut.right() / picture.width());
        const auto v0 = static_cast<float>(sprite.cut.top() / picture.height());
        const auto v1 = static_cast<float>(sprite.cut.bottom() / picture.height());
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

} // namespace vasker
