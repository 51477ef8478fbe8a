#include "map/style/VectorTilePainter.h"

#include "map/style/Dashes.h"
#include "map/style/StyleLayer.h"
#include "map/style/TileClip.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <vector>

namespace vasker {

namespace {

/// Widths of up to one device pixel are drawn many times as fast: what is hardly wider takes that.
constexpr double fastWidth = 1;
constexpr double nearlyFastWidth = 1.6;
/// Up to this many device pixels nobody sees whether ends and joins are round, which costs.
constexpr double widthWithoutCurves = 3.5;

QPen penOf(const QColor& color, double width, Qt::PenCapStyle cap) {
    const bool hasCurves = width > widthWithoutCurves;
    return {color,
            width > fastWidth && width < nearlyFastWidth ? fastWidth : width,
            Qt::SolidLine,
            hasCurves || cap == Qt::FlatCap ? cap : Qt::SquareCap,
            hasCurves ? Qt::RoundJoin : Qt::BevelJoin};
}

QColor faded(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(static_cast<double>(color.alphaF()) * opacity));
    return color;
}

class VectorTilePainter {
  public:
    VectorTilePainter(QPainter& painter,
                      const TileData& data,
                      const TileRequest& request,
                      const MapTheme& theme)
        : m_painter(painter), m_theme(theme), m_clip(data.vectorKey, request),
          m_density(request.devicePixelsPerPixel), m_zoom(request.zoom()) {
        for (const VectorLayer& layer : data.vector->layers) {
            for (const VectorFeature& feature : layer.features) {
                const auto found = featureClass(layer.name, feature);
                if (found && m_clip.shows(feature)) {
                    m_features[static_cast<std::size_t>(*found)].push_back({&feature, {}});
                }
            }
        }
    }

    void paint(const StyleLayer& layer) {
        const QColor& color = m_theme.*layer.color;
        if (m_zoom < layer.firstZoom || m_zoom >= layer.lastZoom || color.alpha() == 0) {
            return;
        }
        std::vector<Feature>& features = m_features[static_cast<std::size_t>(layer.features)];
        switch (layer.kind) {
        case StyleLayer::Kind::fill:
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(color);
            for (const Feature& feature : features) {
                fill(*feature.data);
            }
            m_painter.setBrush(Qt::NoBrush);
            break;
        case StyleLayer::Kind::outline:
            m_painter.setPen(penOf(color, widthOf(layer), Qt::RoundCap));
            for (const Feature& feature : features) {
                for (const std::vector<TilePoint>& part : feature.data->parts) {
                    draw(m_clip.outline(part));
                }
            }
            break;
        case StyleLayer::Kind::line:
            for (Feature& feature : features) {
                drawLine(layer, feature, color);
            }
            break;
        case StyleLayer::Kind::halo: {
            QPainterPath path;
            for (Feature& feature : features) {
                for (const QPolygonF& piece : lines(feature)) {
                    path.addPolygon(piece);
                }
            }
            m_painter.strokePath(path, penOf(color, widthOf(layer), Qt::FlatCap));
            break;
        }
        }
    }

  private:
    struct Feature {
        const VectorFeature* data;
        std::vector<QPolygonF> lines; ///< clipped, when first needed
    };

    /// In device pixels.
    [[nodiscard]] double widthOf(const StyleLayer& layer, bool isLink = false) const {
        const double width = widthAt(layer.widths, m_zoom) * (isLink ? linkWidth : 1);
        return (width + 2 * layer.casing) * m_density;
    }

    const std::vector<QPolygonF>& lines(Feature& feature) {
        if (feature.lines.empty()) {
            for (const std::vector<TilePoint>& part : feature.data->parts) {
                for (QPolygonF& piece : m_clip.line(part)) {
                    feature.lines.push_back(std::move(piece));
                }
            }
        }
        return feature.lines;
    }

    void fill(const VectorFeature& feature) {
        if (feature.parts.size() == 1) {
            const QPolygonF ring = m_clip.ring(feature.parts.front());
            if (!ring.empty()) {
                m_painter.drawPolygon(ring, Qt::OddEvenFill);
            }
            return;
        }
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const std::vector<TilePoint>& part : feature.parts) {
            path.addPolygon(m_clip.ring(part));
            path.closeSubpath();
        }
        m_painter.drawPath(path);
    }

    void drawLine(const StyleLayer& layer, Feature& feature, const QColor& color) {
        const DashPattern dashPattern = feature.data->disputed ? disputedDashes : layer.dashes;
        const bool isDashed = dashPattern.gap > 0;
        const double width = widthOf(layer, feature.data->link);
        QPen pen = penOf(faded(color, feature.data->tunnel ? tunnelOpacity : 1),
                         width,
                         isDashed || layer.isBorder ? Qt::FlatCap : Qt::RoundCap);
        if (layer.isBorder) {
            pen.setWidthF(width);
        }
        m_painter.setPen(pen);
        if (!isDashed) {
            draw(lines(feature));
            return;
        }
        for (const QPolygonF& piece : lines(feature)) {
            draw(dashes(piece,
                        dashPattern.dash * m_density,
                        dashPattern.gap * m_density,
                        m_clip.tileEdges()));
        }
    }

    void draw(const std::vector<QPolygonF>& lines) {
        for (const QPolygonF& line : lines) {
            m_painter.drawPolyline(line);
        }
    }

    QPainter& m_painter;
    const MapTheme& m_theme;
    TileClip m_clip;
    double m_density;
    double m_zoom;
    std::array<std::vector<Feature>, featureClasses> m_features;
};

} // namespace

void paintVectorTile(QPainter& painter,
                     const TileData& data,
                     const TileRequest& request,
                     BasemapTheme theme) {
    if (!data.vector) {
        return;
    }
    VectorTilePainter tile(painter, data, request, mapTheme(theme));
    for (const StyleLayer& layer : styleLayers()) {
        tile.paint(layer);
    }
}

} // namespace vasker
