#include "map/records/RecordPainter.h"

#include "map/records/RouteStyle.h"

#include <QPainter>
#include <QPolygonF>

#include <cmath>

namespace vasker {

namespace {

QColor colorOf(Rgb rgb) {
    return {rgb[0], rgb[1], rgb[2]};
}

QImage dotSprite(const QColor& tint, const QColor& casing, double devicePixels) {
    const double whole = (dotRadius + dotCasing) * devicePixels;
    const int half = static_cast<int>(std::ceil(whole)) + 1;
    QImage sprite(2 * half, 2 * half, QImage::Format_ARGB32_Premultiplied);
    sprite.fill(Qt::transparent);
    QPainter painter(&sprite);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(casing);
    painter.drawEllipse(QPointF(half, half), whole, whole);
    painter.setBrush(tint);
    painter.drawEllipse(QPointF(half, half), dotRadius * devicePixels, dotRadius * devicePixels);
    return sprite;
}

/// A line with its colour, ready to be drawn.
struct ColoredLine {
    Rgb color;
    QPolygonF places;
};

} // namespace

RecordPainter::RecordPainter(std::shared_ptr<const LoadedRelease> loaded,
                             RouteColors routes,
                             std::vector<Marker> dots,
                             RecordColors colors,
                             double devicePixels)
    : m_loaded(std::move(loaded)), m_routes(std::move(routes)), m_dots(std::move(dots)),
      m_colors(std::move(colors)), m_devicePixels(devicePixels) {
    for (const Marker& dot : m_dots) {
        const Rgb tint = m_colors.tints[dot.asset];
        if (!m_sprites.contains(tint)) {
            m_sprites.emplace(tint, dotSprite(colorOf(tint), m_colors.dotCasing, devicePixels));
        }
    }
}

void RecordPainter::paint(QPainter& painter,
                          const MapRect& bounds,
                          double devicePixelsPerMapPoint) const {
    paintRoutes(painter, bounds, devicePixelsPerMapPoint);
    paintDots(painter, bounds, devicePixelsPerMapPoint);
}

/// First every casing, then every core: where a branch meets a trunk, no casing cuts the trunk.
void RecordPainter::paintRoutes(QPainter& painter, const MapRect& bounds, double scale) const {
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

void RecordPainter::paintDots(QPainter& painter, const MapRect& bounds, double scale) const {
    const double margin = (dotRadius + dotCasing + 1) * m_devicePixels / scale;
    for (const double shift : worldCopyOffsets(bounds.inset(-margin, -margin))) {
        MapRect around = bounds.inset(-margin, -margin);
        around.x -= shift;
        for (auto dot = m_dots.rbegin(); dot != m_dots.rend(); ++dot) {
            if (!around.contains(dot->point)) {
                continue;
            }
            const QImage& sprite = m_sprites.at(m_colors.tints[dot->asset]);
            const double x = (dot->point.x + shift - bounds.x) * scale;
            const double y = (dot->point.y - bounds.y) * scale;
            painter.drawImage(QPoint(static_cast<int>(std::lround(x)) - sprite.width() / 2,
                                     static_cast<int>(std::lround(y)) - sprite.height() / 2),
                              sprite);
        }
    }
}

} // namespace vasker
