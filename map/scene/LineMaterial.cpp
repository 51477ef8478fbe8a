#include "map/scene/LineMaterial.h"

#include "map/scene/UniformBlock.h"

#include <QSGMaterialShader>

#include <array>

namespace vasker {

namespace {

class LineShader final : public QSGMaterialShader {
  public:
    LineShader() {
        setShaderFileName(VertexStage, QStringLiteral(":/vasker/shaders/line.vert.qsb"));
        setShaderFileName(FragmentStage, QStringLiteral(":/vasker/shaders/line.frag.qsb"));
    }

    bool
    updateUniformData(RenderState& state, QSGMaterial* next, QSGMaterial* /*previous*/) override {
        const auto& material = *static_cast<LineMaterial*>(next);
        const LineStyle& style = material.style;
        const auto core = static_cast<float>(style.width / 2);
        const float whole = core + static_cast<float>(style.casingWidth);
        // Half a device pixel more than the line on either side holds the smoothed edge.
        const float drawn = whole + 0.5F / material.devicePixels;
        QVector4D color;
        if (style.color) {
            color = premultiplied(*style.color);
        }
        UniformBlock block(*state.uniformData());
        QMatrix4x4 matrix = state.combinedMatrix();
        matrix.translate(material.offset.x(), material.offset.y());
        block.write(matrix);
        block.write(color);
        block.write(premultiplied(style.casing));
        block.write(QVector4D(core, whole, drawn, material.devicePixels));
        return true;
    }
};

} // namespace

LineMaterial::LineMaterial() {
    setFlag(Blending);
    setFlag(NoBatching);
}

const QSGGeometry::AttributeSet& LineMaterial::attributes() {
    static const std::array parts{
        QSGGeometry::Attribute::createWithAttributeType(
            0, 2, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            1, 2, QSGGeometry::FloatType, QSGGeometry::UnknownAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            2, 4, QSGGeometry::UnsignedByteType, QSGGeometry::ColorAttribute)};
    static const QSGGeometry::AttributeSet set{parts.size(), sizeof(LineVertex), parts.data()};
    return set;
}

QSGMaterialType* LineMaterial::type() const {
    static QSGMaterialType type;
    return &type;
}

QSGMaterialShader* LineMaterial::createShader(QSGRendererInterface::RenderMode /*mode*/) const {
    return new LineShader;
}

int LineMaterial::compare(const QSGMaterial* other) const {
    return this == other ? 0 : (this < other ? -1 : 1);
}

} // namespace vasker
