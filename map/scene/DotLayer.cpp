#include "map/scene/DotLayer.h"

#include "map/scene/UniformBlock.h"

#include <QSGMaterialShader>

#include <cstring>

namespace vasker {

namespace {

class DotShader final : public QSGMaterialShader {
  public:
    DotShader() {
        setShaderFileName(VertexStage, QStringLiteral(":/vasker/shaders/dot.vert.qsb"));
        setShaderFileName(FragmentStage, QStringLiteral(":/vasker/shaders/dot.frag.qsb"));
    }

    bool updateUniformData(RenderState& state,
                           QSGMaterial* next,
                           QSGMaterial* /*previous*/) override {
        const auto& material = *static_cast<DotMaterial*>(next);
        const float radius = dotRadius * material.devicePixels;
        const float whole = (dotRadius + dotCasing) * material.devicePixels;
        UniformBlock block(*state.uniformData());
        block.write(state.combinedMatrix());
        block.write(premultiplied(material.casing));
        block.write(QVector4D(radius, whole, 2 * (whole + 1), 0));
        return true;
    }
};

const QSGGeometry::AttributeSet& attributes() {
    static const QSGGeometry::Attribute parts[] = {
        QSGGeometry::Attribute::createWithAttributeType(
            0, 2, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            1, 4, QSGGeometry::UnsignedByteType, QSGGeometry::ColorAttribute)};
    static const QSGGeometry::AttributeSet set{2, sizeof(DotVertex), parts};
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

DotLayer::DotLayer() : m_geometry(attributes(), 0) {
    m_geometry.setDrawingMode(QSGGeometry::DrawPoints);
    m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void DotLayer::update(const std::vector<DotVertex>& dots,
                      const QColor& casing,
                      float devicePixels) {
    m_geometry.allocate(static_cast<int>(dots.size()));
    if (!dots.empty()) {
        std::memcpy(m_geometry.vertexData(), dots.data(), dots.size() * sizeof(DotVertex));
    }
    m_material.casing = casing;
    m_material.devicePixels = devicePixels;
    markDirty(DirtyGeometry | DirtyMaterial);
}

} // namespace vasker
