#include "map/scene/DotNode.h"

#include "map/scene/UniformBlock.h"

#include <QSGMaterialShader>

#include <array>
#include <cstdint>

namespace vasker {

namespace {

struct DotVertex {
    float x, y;
    std::array<std::uint8_t, 4> colorAndCorner;
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

DotMaterial::DotMaterial() {
    setFlag(Blending);
    setFlag(NoBatching);
}

QSGMaterialType* DotMaterial::type() const {
    static QSGMaterialType type;
    return &type;
}

QSGMaterialShader* DotMaterial::createShader(QSGRendererInterface::RenderMode /*mode*/) const {
    return new DotShader;
}

int DotMaterial::compare(const QSGMaterial* other) const {
    return this == other ? 0 : (this < other ? -1 : 1);
}

DotNode::DotNode() : m_geometry(dotAttributes(), 0) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
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
    m_material.radius = static_cast<float>(layer.radius);
    m_material.casingWidth = static_cast<float>(layer.casingWidth);
    m_material.casing = layer.casing;
    m_material.devicePixels = devicePixels;
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace vasker
