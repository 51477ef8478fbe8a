#include "map/scene/TileNode.h"

#include "map/scene/UniformBlock.h"

#include <QQuickWindow>
#include <QSGGeometryNode>
#include <QSGMaterial>
#include <QSGMaterialShader>

#include <algorithm>
#include <array>

namespace vasker {

namespace {

struct TileVertex {
    float x, y, w;
    float u, v;
};

const QSGGeometry::AttributeSet& tileAttributes() {
    static const std::array parts{
        QSGGeometry::Attribute::createWithAttributeType(
            0, 3, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            1, 2, QSGGeometry::FloatType, QSGGeometry::TexCoordAttribute)};
    static const QSGGeometry::AttributeSet set{parts.size(), sizeof(TileVertex), parts.data()};
    return set;
}

class TileMaterial final : public QSGMaterial {
  public:
    TileMaterial() { setFlag(NoBatching); }

    QSGTexture* texture = nullptr;
    float opacity = 1;

    [[nodiscard]] QSGMaterialType* type() const override {
        static QSGMaterialType opaque;
        static QSGMaterialType fading;
        return opacity < 1 ? &fading : &opaque;
    }
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
};

class TileShader final : public QSGMaterialShader {
  public:
    explicit TileShader(bool fades) {
        setShaderFileName(VertexStage, QStringLiteral(":/vasker/shaders/tile.vert.qsb"));
        setShaderFileName(FragmentStage,
                          fades ? QStringLiteral(":/vasker/shaders/fadingtile.frag.qsb")
                                : QStringLiteral(":/vasker/shaders/tile.frag.qsb"));
    }

    bool
    updateUniformData(RenderState& state, QSGMaterial* next, QSGMaterial* /*previous*/) override {
        const auto& material = *static_cast<TileMaterial*>(next);
        UniformBlock block(*state.uniformData());
        block.write(state.combinedMatrix());
        block.write(QVector4D(material.opacity * state.opacity(), 0, 0, 0));
        return true;
    }

    void updateSampledImage(RenderState& state,
                            int /*binding*/,
                            QSGTexture** texture,
                            QSGMaterial* next,
                            QSGMaterial* /*previous*/) override {
        *texture = static_cast<TileMaterial*>(next)->texture;
        (*texture)->commitTextureOperations(state.rhi(), state.resourceUpdateBatch());
    }
};

QSGMaterialShader* TileMaterial::createShader(QSGRendererInterface::RenderMode /*mode*/) const {
    return new TileShader(opacity < 1);
}

} // namespace

struct TileNode::Quad {
    QSGGeometry geometry{tileAttributes(), 4};
    TileMaterial material;
    QSGGeometryNode node;

    Quad() {
        geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
        geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
        node.setFlag(QSGNode::OwnedByParent, false);
        node.setGeometry(&geometry);
        node.setMaterial(&material);
    }

    void update(const TileQuad& quad, QSGTexture& texture) {
        auto* vertex = static_cast<TileVertex*>(geometry.vertexData());
        struct Corner {
            std::size_t number;
            float u, v;
        };
        for (const Corner corner : {Corner{0, 0, 0}, {1, 1, 0}, {3, 0, 1}, {2, 1, 1}}) {
            const PerspectivePoint& point = quad.corners[corner.number];
            *vertex++ = {static_cast<float>(point.x),
                         static_cast<float>(point.y),
                         static_cast<float>(point.w),
                         corner.u,
                         corner.v};
        }
        material.texture = &texture;
        material.opacity = quad.opacity;
        material.setFlag(QSGMaterial::Blending, quad.opacity < 1);
        node.markDirty(DirtyGeometry | DirtyMaterial);
    }
};

TileNode::TileNode() = default;

TileNode::~TileNode() = default;

void TileNode::update(TileLayer& layer, QQuickWindow& window) {
    std::erase_if(m_textures, [&layer](const auto& entry) {
        return !std::ranges::binary_search(layer.kept, entry.first);
    });
    for (const TileImage& each : layer.newImages) {
        auto& texture = m_textures[each.tile];
        texture.reset(window.createTextureFromImage(each.image, QQuickWindow::TextureIsOpaque));
        texture->setFiltering(QSGTexture::Linear);
        texture->setHorizontalWrapMode(QSGTexture::ClampToEdge);
        texture->setVerticalWrapMode(QSGTexture::ClampToEdge);
    }
    layer.newImages.clear();
    while (m_quads.size() < layer.quads.size()) {
        m_quads.push_back(std::make_unique<Quad>());
    }
    for (std::size_t i = 0; i < m_quads.size(); ++i) {
        QSGGeometryNode& node = m_quads[i]->node;
        const auto texture =
            i < layer.quads.size() ? m_textures.find(layer.quads[i].tile) : m_textures.end();
        if (texture != m_textures.end()) {
            m_quads[i]->update(layer.quads[i], *texture->second);
            if (node.parent() == nullptr) {
                appendChildNode(&node);
            }
        } else if (node.parent() != nullptr) {
            removeChildNode(&node);
        }
    }
}

} // namespace vasker
