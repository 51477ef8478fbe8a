#include "map/style/VectorTilePainter.h"

#include "map/style/Dashes.h"
#include "map/style/HalfPlane.h"
#include "map/style/TileClip.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace vasker {

namespace {

/// Widths of up to one device pixel are drawn many times as fast: what is hardly wider takes that.
constexpr double fastWidth = 1;
constexpr double nearlyFastWidth = 1.6;
/// Up to this many device pixels round ends and joins cannot be seen, and only cost time.
constexpr double widthWithoutCurves = 3.5;

QPen penOf(const QColor& color, double width, Qt::PenCapStyle cap) {
    const bool hasCurves = width > widthWithoutCurves;
    return {color,
            width > fastWidth && width < nearlyFastWidth ? fastWidth : width,
            Qt::SolidLine,
            hasCurves || cap == Qt::FlatCap ? cap : Qt::SquareCap,
            hasCurves ? Qt::RoundJoin : Qt::BevelJoin};
}

/// The painter's time for a line grows with the square of how often it crosses a row of pixels:
/// long lines are drawn in pieces, in sides of the raster tile.
constexpr double longestPiece = 4;

/// In device pixels. The painter fills an outline band by band, a few rows each, and walks every
/// step that it meets there through all rows of that step: tall ones are taken in parts.
constexpr double tallestStep = 16;

bool isTall(QPointF from, QPointF to) {
    return std::abs(to.y() - from.y()) > tallestStep;
}

/// The same line, with more points on its tall steps.
QPolygonF inShortSteps(const QPolygonF& line) {
    if (std::adjacent_find(line.cbegin(), line.cend(), isTall) == line.cend()) {
        return line;
    }
    QPolygonF steps{line.front()};
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QPointF from = line[i - 1];
        const double height = std::abs(line[i].y() - from.y());
        const int count = static_cast<int>(std::ceil(height / tallestStep));
        for (int step = 1; step < count; ++step) {
            steps.append(between(from, line[i], static_cast<double>(step) / count));
        }
        steps.append(line[i]);
    }
    return steps;
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
                      const MapTheme& theme,
                      PaintBudget& budget)
        : m_painter(painter), m_theme(theme), m_budget(budget), m_clip(data.vectorKey, request),
          m_side(std::max(request.pixels().width, request.pixels().height)),
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
                    if (mayClip(part)) {
                        draw(m_clip.outline(part));
                    }
                }
            }
            break;
        case StyleLayer::Kind::line:
            for (Feature& feature : features) {
                drawLine(layer, feature, color);
            }
            break;
        case StyleLayer::Kind::halo:
            drawHalo(features, penOf(color, widthOf(layer), Qt::FlatCap));
            break;
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

    /// Whether the budget holds it.
    bool mayClip(const std::vector<TilePoint>& part) {
        return m_budget.spend(clipCost(part.size()));
    }

    const std::vector<QPolygonF>& lines(Feature& feature) {
        if (feature.lines.empty()) {
            for (const std::vector<TilePoint>& part : feature.data->parts) {
                if (!mayClip(part)) {
                    break;
                }
                for (QPolygonF& piece : m_clip.line(part)) {
                    feature.lines.push_back(std::move(piece));
                }
            }
        }
        return feature.lines;
    }

    void fill(const VectorFeature& feature) {
        std::vector<QPolygonF> rings;
        for (const std::vector<TilePoint>& part : feature.parts) {
            if (!mayClip(part)) {
                return;
            }
            QPolygonF ring = m_clip.ring(part);
            if (!ring.empty()) {
                ring.append(ring.front());
                rings.push_back(std::move(ring));
            }
        }
        if (rings.empty() || !m_budget.spend(fillCost(rings))) {
            return;
        }
        for (QPolygonF& ring : rings) {
            ring = inShortSteps(ring);
        }
        if (rings.size() == 1) {
            m_painter.drawPolygon(rings.front(), Qt::OddEvenFill);
            return;
        }
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const QPolygonF& ring : rings) {
            path.addPolygon(ring);
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
            if (m_budget.isSpent()) {
                return;
            }
            dashes(piece,
                   dashPattern.dash * m_density,
                   dashPattern.gap * m_density,
                   m_clip.tileEdges(),
                   [this](const QPolygonF& dash) {
                       drawPiece(dash);
                       return !m_budget.isSpent();
                   });
        }
    }

    void drawHalo(std::vector<Feature>& features, const QPen& pen) {
        std::vector<QPolygonF> pieces;
        double length = 0;
        const auto stroke = [&] {
            if (m_budget.spend(strokeCost(pieces, pen.widthF()))) {
                QPainterPath path;
                for (const QPolygonF& piece : pieces) {
                    path.addPolygon(inShortSteps(piece));
                }
                m_painter.strokePath(path, pen);
            }
            pieces.clear();
            length = 0;
        };
        for (Feature& feature : features) {
            for (const QPolygonF& line : lines(feature)) {
                for (QPolygonF& piece : inPieces(line)) {
                    length += lengthOf(piece);
                    pieces.push_back(std::move(piece));
                    if (length > longestPiece * m_side) {
                        stroke();
                    }
                }
            }
        }
        stroke();
    }

    void draw(const std::vector<QPolygonF>& lines) {
        for (const QPolygonF& line : lines) {
            for (const QPolygonF& piece : inPieces(line)) {
                drawPiece(piece);
            }
        }
    }

    /// Whole where it is not too long.
    [[nodiscard]] std::vector<QPolygonF> inPieces(const QPolygonF& line) const {
        std::vector<QPolygonF> pieces;
        qsizetype first = 0;
        double length = 0;
        for (qsizetype i = 1; i + 1 < line.size(); ++i) {
            length += QLineF(line[i - 1], line[i]).length();
            if (length > longestPiece * m_side) {
                pieces.emplace_back(line.mid(first, i - first + 1));
                first = i;
                length = 0;
            }
        }
        pieces.push_back(first == 0 ? line : QPolygonF(line.mid(first)));
        return pieces;
    }

    void drawPiece(const QPolygonF& line) {
        const double width = m_painter.pen().widthF();
        if (m_budget.spend(strokeCost({&line, 1}, width))) {
            m_painter.drawPolyline(width > fastWidth ? inShortSteps(line) : line);
        }
    }

    QPainter& m_painter;
    const MapTheme& m_theme;
    PaintBudget& m_budget;
    TileClip m_clip;
    double m_side; ///< of the raster tile, in device pixels
    double m_density;
    double m_zoom;
    std::array<std::vector<Feature>, featureClasses> m_features;
};

} // namespace

void paintVectorTile(QPainter& painter,
                     const TileData& data,
                     const TileRequest& request,
                     BasemapTheme theme,
                     std::span<const StyleLayer> layers,
                     PaintBudget& budget) {
    if (!data.vector) {
        return;
    }
    VectorTilePainter tile(painter, data, request, mapTheme(theme), budget);
    for (const StyleLayer& layer : layers) {
        if (!budget.isSpent()) {
            tile.paint(layer);
        }
    }
}

} // namespace vasker
