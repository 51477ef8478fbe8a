#include "map/records/RecordOverlay.h"

#include "map/records/RouteStyle.h"

#include <QPainter>
#include <QPolygonF>

#include <cmath>

namespace vasker {

namespace {

QImage dotSprite(const QColor& color, const QColor& casing, double devicePixels) {
    const double whole = (dotRadius + dotCasing) * devicePixels;
    const int half = static_cast<int>(std::ceil(whole)) + 1;
    QImage sprite(2 * half, 2 * half, QImage::Format_ARGB32_Premultiplied);
    sprite.fill(Qt::transparent);
    QPainter painter(&sprite);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(casing);
    painter.drawEllipse(QPointF(half, half), whole, whole);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(half, half), dotRadius * devicePixels, dotRadius * devicePixels);
    return sprite;
}

/// A line with its colour, ready to be drawn.
struct ColoredLine {
    Rgb color;
    QPolygonF places;
};

} // namespace

RecordOverlay::RecordOverlay(std::shared_ptr<const LoadedRelease> loaded,
                             RouteColors routes,
                             std::shared_ptr<const MarkerLayout> layout,
                             RecordColors colors,
                             double devicePixels)
    : m_loaded(std::move(loaded)), m_routes(std::move(routes)), m_layout(std::move(layout)),
      m_colors(std::move(colors)), m_devicePixels(devicePixels) {
    for (const Marker& dot : m_layout->dots) {
        const Rgb color = m_colors.records[dot.asset];
        if (!m_sprites.contains(color)) {
            m_sprites.emplace(color, dotSprite(colorOf(color), m_colors.dotCasing, devicePixels));
        }
    }
}

void RecordOverlay::paint(QPainter& painter,
                          const MapRect& bounds,
                          double devicePixelsPerMapPoint) const {
    paintRoutes(painter, bounds, devicePixelsPerMapPoint);
    paintDots(painter, bounds, devicePixelsPerMapPoint);
}

/// First every casing, then every core: where a branch meets a trunk, no casing cuts the trunk.
void RecordOverlay::paintRoutes(QPainter& painter, const MapRect& bounds, double scale) const {
    const LineView view{.project = [&](MapPoint point) -> PerspectivePoint {
                            return {(point.x - bounds.x) * scale, (point.y - bounds.y) * scale, 1};
                        },
                        .width = bounds.width * scale,
                        .height = bounds.height * scale,
                        .seen = bounds.inset(-lineReach / scale, -lineReach / scale),
                        .scale = scale / m_devicePixels};
    std::vector<ColoredLine> lines;
    drawRouteLines(m_loaded->geometry,
                   m_loaded->geometry.runs(),
                   m_routes,
                   view,
                   [&lines](Rgb color, std::span<const ScreenPoint> line) {
                       ColoredLine& added = lines.emplace_back(ColoredLine{color, {}});
                       added.places.reserve(static_cast<qsizetype>(line.size()));
                       for (const ScreenPoint& place : line) {
                           added.places.append(QPointF(place.x, place.y));
                       }
                   });
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const auto draw = [&](const ColoredLine& line) {
        if (line.places.size() == 1) {
            painter.drawPoint(line.places.first());
        } else {
            painter.drawPolyline(line.places);
        }
    };
    const auto penOf = [this](const QColor& color, double width) {
        return QPen(color, width * m_devicePixels, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    };
    painter.setPen(penOf(m_colors.routeCasing, routeWidth + 2 * routeCasing));
    for (const ColoredLine& line : lines) {
        draw(line);
    }
    for (const ColoredLine& line : lines) {
        painter.setPen(penOf(colorOf(line.color), routeWidth));
        draw(line);
    }
}

void RecordOverlay::paintDots(QPainter& painter, const MapRect& bounds, double scale) const {
    const double margin = (dotRadius + dotCasing + 1) * m_devicePixels / scale;
    for (const double offset : worldCopyOffsets(bounds.inset(-margin, -margin))) {
        MapRect around = bounds.inset(-margin, -margin);
        around.x -= offset;
        for (auto dot = m_layout->dots.rbegin(); dot != m_layout->dots.rend(); ++dot) {
            if (!around.contains(dot->point)) {
                continue;
            }
            const QImage& sprite = m_sprites.at(m_colors.records[dot->asset]);
            const double x = (dot->point.x + offset - bounds.x) * scale;
            const double y = (dot->point.y - bounds.y) * scale;
            painter.drawImage(QPoint(static_cast<int>(std::lround(x)) - sprite.width() / 2,
                                     static_cast<int>(std::lround(y)) - sprite.height() / 2),
                              sprite);
        }
    }
}

} // namespace vasker
