#include "map/scene/DotNode.h"

#include "map/scene/UniformBlock.h"

#include <QSGMaterial>
#include <QSGMaterialShader>

#include <array>
#include <cstdint>

namespace vasker {

namespace {

struct DotVertex {
    float x, y;
    std::array<std::uint8_t, 4> colorAndCorner;
};

class DotMaterial final : public QSGMaterial {
  public:
    DotMaterial() {
        setFlag(Blending);
        setFlag(NoBatching);
    }

    float radius = 1;      ///< item pixels
    float casingWidth = 0; ///< item pixels
    QColor casing;
    float devicePixels = 1; ///< per item pixel

    [[nodiscard]] QSGMaterialType* type() const override {
        static QSGMaterialType type;
        return &type;
    }
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
};

class DotShader final : public QSGMaterialShader {
  public:
    DotShader() {
        setShaderFileName(VertexStage, QStringLiteral(":/vasker/shaders/dot.vert.qsb"));
        setShaderFileName(FragmentStage, QStringLiteral(":/vasker/shaders/dot.frag.qsb"));
    }

    bool
    updateUniformData(RenderState& state, QSGMaterial* next, QSGMaterial* /*previous*/) override {
        const auto& material = *static_cast<DotMaterial*>(next);
        const auto radius = material.radius * material.devicePixels;
        const auto whole = (material.radius + material.casingWidth) * material.devicePixels;
        UniformBlock block(*state.uniformData());
        block.write(state.combinedMatrix());
        block.write(premultiplied(material.casing));
        block.write(QVector4D(radius, whole, material.devicePixels, 0));
        return true;
    }
};

QSGMaterialShader* DotMaterial::createShader(QSGRendererInterface::RenderMode /*mode*/) const {
    return new DotShader;
}

const QSGGeometry::AttributeSet& dotAttributes() {
    static const std::array parts{
        QSGGeometry::Attribute::createWithAttributeType(
            0, 2, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            1, 4, QSGGeometry::UnsignedByteType, QSGGeometry::ColorAttribute)};
    static const QSGGeometry::AttributeSet set{parts.size(), sizeof(DotVertex), parts.data()};
    return set;
}

} // namespace

DotNode::DotNode() : m_geometry(dotAttributes(), 0) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
    setGeometry(&m_geometry);
    setMaterial(new DotMaterial);
    setFlag(OwnsMaterial);
}

void DotNode::update(const DotLayer& layer, float devicePixels) {
    if (layer.dots.empty() && m_geometry.vertexCount() == 0) {
        return;
    }
    m_geometry.allocate(static_cast<int>(3 * layer.dots.size()));
    auto* vertex = static_cast<DotVertex*>(m_geometry.vertexData());
    for (const Dot& dot : layer.dots) {
        for (std::uint8_t corner = 0; corner < 3; ++corner) {
            *vertex++ = {dot.x, dot.y, {dot.color[0], dot.color[1], dot.color[2], corner}};
        }
    }
    auto& drawn = *static_cast<DotMaterial*>(material());
    drawn.radius = static_cast<float>(layer.radius);
    drawn.casingWidth = static_cast<float>(layer.casingWidth);
    drawn.casing = layer.casing;
    drawn.devicePixels = devicePixels;
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace vasker
