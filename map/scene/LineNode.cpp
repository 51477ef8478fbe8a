#include "map/scene/LineNode.h"

#include "map/scene/UniformBlock.h"

#include <QSGMaterial>
#include <QSGMaterialShader>
#include <QVector2D>

#include <array>
#include <cstring>

namespace vasker {

namespace {

class LineMaterial final : public QSGMaterial {
  public:
    LineMaterial() {
        setFlag(Blending);
        setFlag(NoBatching);
    }

    LineStyle style;
    QVector2D offset;       ///< of the strip, in item pixels
    float devicePixels = 1; ///< per item pixel

    [[nodiscard]] QSGMaterialType* type() const override {
        static QSGMaterialType type;
        return &type;
    }
    [[nodiscard]] QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
};

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

QSGMaterialShader* LineMaterial::createShader(QSGRendererInterface::RenderMode /*mode*/) const {
    return new LineShader;
}

/// The vertex format of LineStrip.
const QSGGeometry::AttributeSet& lineAttributes() {
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

} // namespace

LineNode::LineNode() : m_geometry(lineAttributes(), 0) {
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    m_geometry.setVertexDataPattern(QSGGeometry::StreamPattern);
    setGeometry(&m_geometry);
    setMaterial(new LineMaterial);
    setFlag(OwnsMaterial);
}

void LineNode::update(const LineLayer& layer, float devicePixels) {
    if (layer.strip != m_strip) {
        m_strip = layer.strip;
        const std::size_t count = m_strip ? m_strip->size() : 0;
        m_geometry.allocate(static_cast<int>(count));
        if (count > 0) {
            std::memcpy(m_geometry.vertexData(), m_strip->data(), count * sizeof(LineVertex));
        }
        markDirty(DirtyGeometry);
    }
    if (m_strip) {
        auto& drawn = *static_cast<LineMaterial*>(material());
        drawn.style = layer.style;
        drawn.offset = {static_cast<float>(layer.offset.x), static_cast<float>(layer.offset.y)};
        drawn.devicePixels = devicePixels;
        markDirty(DirtyMaterial);
    }
}

} // namespace vasker
