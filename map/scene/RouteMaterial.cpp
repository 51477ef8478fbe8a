#include "map/scene/RouteMaterial.h"

#include "map/records/RouteStrip.h"
#include "map/scene/UniformBlock.h"

#include <QSGMaterialShader>

namespace vasker {

namespace {

class RouteShader final : public QSGMaterialShader {
  public:
    RouteShader() {
        setShaderFileName(VertexStage, QStringLiteral(":/vasker/shaders/route.vert.qsb"));
        setShaderFileName(FragmentStage, QStringLiteral(":/vasker/shaders/route.frag.qsb"));
    }

    bool
    updateUniformData(RenderState& state, QSGMaterial* next, QSGMaterial* /*previous*/) override {
        const auto& material = *static_cast<RouteMaterial*>(next);
        const RouteStyle& style = material.style;
        const float core = style.coreWidth / 2;
        const float whole = core + style.casingWidth;
        // Half a device pixel more than the line on either side holds the smoothed edge.
        const float drawn = whole + 0.5F / material.devicePixels;
        QVector4D ink;
        if (style.ink) {
            ink = premultiplied(*style.ink);
        }
        UniformBlock block(*state.uniformData());
        block.write(state.combinedMatrix());
        block.write(ink);
        block.write(premultiplied(style.casing));
        block.write(QVector4D(core, whole, drawn, material.devicePixels));
        return true;
    }
};

} // namespace

RouteMaterial::RouteMaterial() {
    setFlag(Blending);
    setFlag(NoBatching);
}

const QSGGeometry::AttributeSet& RouteMaterial::attributes() {
    static const QSGGeometry::Attribute parts[] = {
        QSGGeometry::Attribute::createWithAttributeType(
            0, 2, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            1, 2, QSGGeometry::FloatType, QSGGeometry::UnknownAttribute),
        QSGGeometry::Attribute::createWithAttributeType(
            2, 4, QSGGeometry::UnsignedByteType, QSGGeometry::ColorAttribute)};
    static const QSGGeometry::AttributeSet set{3, sizeof(RouteVertex), parts};
    return set;
}

QSGMaterialType* RouteMaterial::type() const {
    static QSGMaterialType type;
    return &type;
}

QSGMaterialShader* RouteMaterial::createShader(QSGRendererInterface::RenderMode /*mode*/) const {
    return new RouteShader;
}

int RouteMaterial::compare(const QSGMaterial* other) const {
    return this == other ? 0 : (this < other ? -1 : 1);
}

} // namespace vasker
