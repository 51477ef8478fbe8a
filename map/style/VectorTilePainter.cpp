#include "map/style/VectorTilePainter.h"

#include "map/style/BasemapStyle.h"
#include "map/style/Dashes.h"
#include "map/style/TileClip.h"

#include <QPainter>
#include <QPainterPath>

#include <array>

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

/// A line of the tile that is drawn, and how far its place in the world changes its looks.
struct ClassedLine {
    const VectorFeature* feature;
    std::vector<QPolygonF> pieces;
};

/// Paints one tile's data in one dress.
class VectorTilePainter {
  public:
    VectorTilePainter(QPainter& painter,
                      const TileData& ground,
                      const TileRequest& request,
                      const BasemapColors& colors)
        : m_painter(painter), m_colors(colors), m_window(ground.vectorKey, request),
          m_density(request.devicePixelsPerPixel), m_zoom(zoomOnScreen(request)) {
        for (const VectorLayer& layer : ground.vector->layers) {
            sort(layer);
        }
    }

    void paintAreas(bool aboveRivers) {
        const std::span<const AreaStyle> styles = areaStyles();
        for (std::size_t i = 0; i < styles.size(); ++i) {
            if (styles[i].aboveRivers == aboveRivers) {
                paintAreas(styles[i], m_areas[i]);
            }
        }
    }

    void paintLines(LineClass first, LineClass last) {
        for (auto i = static_cast<std::size_t>(first); i <= static_cast<std::size_t>(last); ++i) {
            paintEdges(static_cast<LineClass>(i));
        }
        for (auto i = static_cast<std::size_t>(first); i <= static_cast<std::size_t>(last); ++i) {
            paintLines(static_cast<LineClass>(i));
        }
    }

    void paintCountryHalo() {
        const QPen pen = penOf(m_colors.countryHalo, countryHaloWidth * m_density, Qt::FlatCap);
        // One path: where borders meet, the halo grows no darker.
        QPainterPath path;
        for (const ClassedLine& line : m_lines[static_cast<std::size_t>(LineClass::country)]) {
            for (const QPolygonF& piece : line.pieces) {
                path.addPolygon(piece);
            }
        }
        m_painter.strokePath(path, pen);
    }

  private:
    void sort(const VectorLayer& layer) {
        for (const VectorFeature& feature : layer.features) {
            if (feature.geometry == VectorFeature::Geometry::polygon) {
                sortArea(layer.name, feature);
            } else if (feature.geometry == VectorFeature::Geometry::lines) {
                sortLine(layer.name, feature);
            }
        }
    }

    void sortArea(std::string_view layer, const VectorFeature& feature) {
        const std::optional<std::size_t> style = areaStyleOf(layer, feature.kind);
        if (style && areaStyles()[*style].firstZoom <= m_zoom && m_window.shows(feature)) {
            m_areas[*style].push_back(&feature);
        }
    }

    void sortLine(std::string_view layer, const VectorFeature& feature) {
        const std::optional<LineClass> lineClass = lineClassOf(layer, feature);
        if (!lineClass || lineStyle(*lineClass).firstZoom > m_zoom || !m_window.shows(feature)) {
            return;
        }
        ClassedLine line{&feature, {}};
        for (const std::vector<TilePoint>& part : feature.parts) {
            for (QPolygonF& piece : m_window.line(part)) {
                line.pieces.push_back(std::move(piece));
            }
        }
        m_lines[static_cast<std::size_t>(*lineClass)].push_back(std::move(line));
    }

    void paintAreas(const AreaStyle& style, const std::vector<const VectorFeature*>& features) {
        const QColor& color = m_colors.*style.color;
        if (color.alpha() == 0) {
            return;
        }
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        for (const VectorFeature* feature : features) {
            fill(*feature);
        }
        if (style.outline == nullptr) {
            return;
        }
        const double width = coastWidthAt(m_zoom) * style.outlineFactor * m_density;
        m_painter.setPen(penOf(m_colors.*style.outline, width, Qt::RoundCap));
        m_painter.setBrush(Qt::NoBrush);
        for (const VectorFeature* feature : features) {
            for (const std::vector<TilePoint>& part : feature->parts) {
                draw(m_window.outline(part));
            }
        }
    }

    void fill(const VectorFeature& feature) {
        if (feature.parts.size() == 1) {
            const QPolygonF ring = m_window.ring(feature.parts.front());
            if (!ring.empty()) {
                m_painter.drawPolygon(ring, Qt::OddEvenFill);
            }
            return;
        }
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const std::vector<TilePoint>& part : feature.parts) {
            path.addPolygon(m_window.ring(part));
            path.closeSubpath();
        }
        m_painter.drawPath(path);
    }

    void draw(const std::vector<QPolygonF>& lines) {
        for (const QPolygonF& line : lines) {
            m_painter.drawPolyline(line);
        }
    }

    [[nodiscard]] double widthOf(const LineStyle& style, const VectorFeature& feature) const {
        return widthAt(style.widths, m_zoom) * (feature.link ? linkWidth : 1);
    }

    void paintEdges(LineClass lineClass) {
        const LineStyle& style = lineStyle(lineClass);
        if (m_zoom < style.edgeZoom || m_colors.roadEdge.alpha() == 0) {
            return;
        }
        for (const ClassedLine& line : m_lines[static_cast<std::size_t>(lineClass)]) {
            const double width = widthOf(style, *line.feature) + 2 * roadEdgeWidth;
            const double opacity = line.feature->tunnel ? tunnelOpacity : 1;
            m_painter.setPen(
                penOf(faded(m_colors.roadEdge, opacity), width * m_density, Qt::RoundCap));
            draw(line.pieces);
        }
    }

    void paintLines(LineClass lineClass) {
        const LineStyle& style = lineStyle(lineClass);
        const QColor color = m_colors.*(m_zoom < style.edgeZoom ? style.thinColor : style.color);
        const bool isBorder = lineClass >= LineClass::region;
        if (color.alpha() == 0) {
            return;
        }
        for (const ClassedLine& line : m_lines[static_cast<std::size_t>(lineClass)]) {
            const DashPattern pattern = line.feature->disputed ? disputedDashes : style.dashes;
            const bool isDashed = pattern.gap > 0;
            const double width = widthOf(style, *line.feature) * m_density;
            QPen pen = penOf(faded(color, line.feature->tunnel ? tunnelOpacity : 1),
                             width,
                             isDashed || isBorder ? Qt::FlatCap : Qt::RoundCap);
            if (isBorder) {
                pen.setWidthF(width);
            }
            m_painter.setPen(pen);
            if (!isDashed) {
                draw(line.pieces);
                continue;
            }
            for (const QPolygonF& piece : line.pieces) {
                draw(dashes(piece,
                            pattern.dash * m_density,
                            pattern.gap * m_density,
                            m_window.tileEdges()));
            }
        }
    }

    QPainter& m_painter;
    const BasemapColors& m_colors;
    TileClip m_window;
    double m_density;
    double m_zoom;
    std::vector<std::vector<const VectorFeature*>> m_areas{areaStyles().size()};
    std::array<std::vector<ClassedLine>, lineClasses> m_lines;
};

} // namespace

void paintVectorTile(QPainter& painter,
                     const TileData& ground,
                     const TileRequest& request,
                     BasemapTheme look) {
    if (!ground.vector) {
        return;
    }
    VectorTilePainter layers(painter, ground, request, basemapColors(look));
    layers.paintAreas(false);
    layers.paintLines(LineClass::river, LineClass::stream);
    layers.paintAreas(true);
    layers.paintLines(LineClass::ferry, LineClass::rail);
    layers.paintLines(LineClass::service, LineClass::motorway);
    layers.paintLines(LineClass::region, LineClass::region);
    layers.paintCountryHalo();
    layers.paintLines(LineClass::country, LineClass::country);
}

} // namespace vasker
