#include "map/records/RecordOverlay.h"

#include "map/raster/CoverageMask.h"
#include "map/records/RouteStyle.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <tuple>

namespace vasker {

namespace {

QImage dotSprite(double radius, const QColor& color, const QColor& casing, double devicePixels) {
    const double whole = (radius + dotCasing) * devicePixels;
    const int half = static_cast<int>(std::ceil(whole)) + 1;
    QImage sprite(2 * half, 2 * half, QImage::Format_ARGB32_Premultiplied);
    sprite.fill(Qt::transparent);
    QPainter painter(&sprite);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(casing);
    painter.drawEllipse(QPointF(half, half), whole, whole);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(half, half), radius * devicePixels, radius * devicePixels);
    return sprite;
}

/// Visits the dots that reach into `bounds` in drawing order, each in every copy of the world.
template <typename Visit>
void forDotsIn(const MarkerLayout& layout,
               const MapRect& bounds,
               double margin,
               const Visit& visit) {
    const MapRect reached = bounds.inset(-margin, -margin);
    for (const double offset : worldCopyOffsets(reached)) {
        const MapRect around = reached.shifted(-offset);
        for (auto dot = layout.dots.rbegin(); dot != layout.dots.rend(); ++dot) {
            if (around.contains(dot->point)) {
                visit(*dot, offset);
            }
        }
    }
}

} // namespace

RecordOverlay::RecordOverlay(std::shared_ptr<const LoadedRelease> loaded,
                             RouteColors routes,
                             std::shared_ptr<const MarkerLayout> layout,
                             RecordColors colors,
                             double devicePixels)
    : m_loaded(std::move(loaded)), m_routes(std::move(routes)), m_layout(std::move(layout)),
      m_colors(std::move(colors)), m_devicePixels(devicePixels),
      m_lines(routeWidth / 2 * devicePixels, (routeWidth / 2 + routeCasing) * devicePixels) {
    for (const RouteRun& run : m_loaded->geometry.runs()) {
        const std::optional<Rgb>& color = m_routes[run.asset];
        if (color && std::ranges::find(m_lineColors, *color) == m_lineColors.end()) {
            m_lineColors.push_back(*color);
        }
    }
    std::ranges::sort(m_lineColors); // what lies on top must not depend on what else is shown
    for (const Marker& dot : m_layout->dots) {
        const Rgb color = m_colors.records[dot.asset];
        QImage& sprite = m_sprites[{color, dot.isQuiet}];
        if (sprite.isNull()) {
            sprite = dotSprite(dotRadiusOf(dot), colorOf(color), m_colors.dotCasing, devicePixels);
        }
    }
}

void RecordOverlay::paint(QImage& image,
                          const MapRect& bounds,
                          double devicePixelsPerMapPoint) const {
    paintRoutes(image, bounds, devicePixelsPerMapPoint);
    paintDots(image, bounds, devicePixelsPerMapPoint);
}

/// First every casing, then the cores, color by color: where a branch meets a trunk, no casing cuts
/// the trunk.
void RecordOverlay::paintRoutes(QImage& image, const MapRect& bounds, double scale) const {
    const LineView view{.project = [&](MapPoint point) -> PerspectivePoint {
                            return {(point.x - bounds.x) * scale, (point.y - bounds.y) * scale, 1};
                        },
                        .width = bounds.width * scale,
                        .height = bounds.height * scale,
                        .seen = bounds.inset(-lineReach / scale, -lineReach / scale),
                        .scale = scale / m_devicePixels};
    std::vector<std::optional<CoverageMask>> cores(m_lineColors.size());
    std::optional<CoverageMask> casings;
    const auto made = [&image](std::optional<CoverageMask>& mask) -> CoverageMask& {
        return mask ? *mask : mask.emplace(image.width(), image.height());
    };
    drawRouteLines(m_loaded->geometry,
                   m_loaded->geometry.runs(),
                   m_routes,
                   view,
                   [&](AssetIndex asset, std::span<const ScreenPoint> line) {
                       const auto known = std::ranges::find(m_lineColors, *m_routes[asset]);
                       const auto place = static_cast<std::size_t>(known - m_lineColors.begin());
                       m_lines.cover(line, made(cores[place]), made(casings));
                   });
    if (casings) {
        casings->paint(image, m_colors.routeCasing);
    }
    for (std::size_t i = 0; i < cores.size(); ++i) {
        if (cores[i]) {
            cores[i]->paint(image, colorOf(m_lineColors[i]));
        }
    }
}

double RecordOverlay::dotMargin(double scale) const {
    return (dotRadius + dotCasing + 1) * m_devicePixels / scale;
}

void RecordOverlay::paintDots(QImage& image, const MapRect& bounds, double scale) const {
    QPainter painter(&image);
    forDotsIn(*m_layout, bounds, dotMargin(scale), [&](const Marker& dot, double offset) {
        const QImage& sprite = m_sprites.at({m_colors.records[dot.asset], dot.isQuiet});
        const double x = (dot.point.x + offset - bounds.x) * scale;
        const double y = (dot.point.y - bounds.y) * scale;
        painter.drawImage(QPoint(static_cast<int>(std::lround(x)) - sprite.width() / 2,
                                 static_cast<int>(std::lround(y)) - sprite.height() / 2),
                          sprite);
    });
}

bool RecordOverlay::paintsLike(const TileOverlay& other,
                               const MapRect& bounds,
                               double devicePixelsPerMapPoint) const {
    const auto* const records = dynamic_cast<const RecordOverlay*>(&other);
    if (records == nullptr || records->m_loaded != m_loaded ||
        records->m_devicePixels != m_devicePixels ||
        records->m_colors.dotCasing != m_colors.dotCasing ||
        records->m_colors.routeCasing != m_colors.routeCasing) {
        return false;
    }
    const auto dotsOf = [&](const RecordOverlay& overlay) {
        std::vector<std::tuple<AssetIndex, bool, Rgb>> dots;
        forDotsIn(*overlay.m_layout,
                  bounds,
                  dotMargin(devicePixelsPerMapPoint),
                  [&](const Marker& dot, double /*offset*/) {
                      dots.emplace_back(
                          dot.asset, dot.isQuiet, overlay.m_colors.records[dot.asset]);
                  });
        return dots;
    };
    const double reach = lineReach / devicePixelsPerMapPoint;
    return dotsOf(*this) == dotsOf(*records) && hasRoutesOf(*records, bounds.inset(-reach, -reach));
}

bool RecordOverlay::hasRoutesOf(const RecordOverlay& other, const MapRect& bounds) const {
    const std::vector<double> offsets = worldCopyOffsets(bounds);
    return std::ranges::all_of(m_loaded->geometry.runs(), [&](const RouteRun& run) {
        return m_routes[run.asset] == other.m_routes[run.asset] ||
               std::ranges::none_of(offsets, [&](double offset) {
                   return bounds.intersects(run.bounds.shifted(offset));
               });
    });
}

} // namespace vasker
