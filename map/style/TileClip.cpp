#include "map/style/TileClip.h"

#include "map/style/HalfPlane.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace vasker {

namespace {

/// Points nearer than this to the one before, in device pixels, are left out.
constexpr double leastStep = 0.5;

bool isFinite(TilePoint point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

bool isNear(QPointF a, QPointF b) {
    return std::abs(b.x() - a.x()) < leastStep && std::abs(b.y() - a.y()) < leastStep;
}

/// After Sutherland and Hodgman: what of a closed polygon lies in one half plane.
QPolygonF cut(const QPolygonF& ring, const HalfPlane& half) {
    QPolygonF kept;
    kept.reserve(ring.size() + 4);
    QPointF last = ring.back();
    double lastDepth = half.depth(last);
    for (const QPointF& point : ring) {
        const double depth = half.depth(point);
        if ((depth < 0) != (lastDepth < 0)) {
            kept.append(between(last, point, lastDepth / (lastDepth - depth)));
        }
        if (depth >= 0) {
            kept.append(point);
        }
        last = point;
        lastDepth = depth;
    }
    return kept;
}

/// Whether both points lie on or beyond the same edge of the data's tile, where nothing is drawn.
bool runsAlongTheTilesEdge(TilePoint a, TilePoint b) {
    return (a.x <= 0 && b.x <= 0) || (a.y <= 0 && b.y <= 0) || (a.x >= 1 && b.x >= 1) ||
           (a.y >= 1 && b.y >= 1);
}

} // namespace

TileClip::TileClip(TileKey dataKey, const TileRequest& request) noexcept {
    const PixelRect pixels = request.pixels();
    const double scale = request.devicePixelsPerMapPoint;
    const auto fromCorner = [&](const MapRect& bounds) {
        return QPointF(bounds.x * scale - static_cast<double>(pixels.x),
                       bounds.y * scale - static_cast<double>(pixels.y));
    };
    m_origin = fromCorner(dataKey.bounds());
    m_scale = dataKey.side() * scale;
    const double side = request.key.side() * scale;
    m_tileEdges = QRectF(fromCorner(request.key.bounds()), QSizeF(side, side));
    m_kept = QRectF(0, 0, pixels.width, pixels.height).adjusted(-margin, -margin, margin, margin);
}

QPointF TileClip::toPixels(TilePoint point) const noexcept {
    return {m_origin.x() + static_cast<double>(point.x) * m_scale,
            m_origin.y() + static_cast<double>(point.y) * m_scale};
}

bool TileClip::holds(QPointF point) const noexcept {
    return point.x() >= m_kept.left() && point.y() >= m_kept.top() && point.x() <= m_kept.right() &&
           point.y() <= m_kept.bottom();
}

bool TileClip::shows(const VectorFeature& feature) const noexcept {
    constexpr float infinite = std::numeric_limits<float>::infinity();
    TilePoint least{infinite, infinite};
    TilePoint most{-infinite, -infinite};
    for (const std::vector<TilePoint>& part : feature.parts) {
        for (const TilePoint point : part) {
            least = {std::min(least.x, point.x), std::min(least.y, point.y)};
            most = {std::max(most.x, point.x), std::max(most.y, point.y)};
        }
    }
    const QPointF from = toPixels(least);
    const QPointF to = toPixels(most);
    return to.x() >= m_kept.left() && to.y() >= m_kept.top() && from.x() <= m_kept.right() &&
           from.y() <= m_kept.bottom();
}

QPolygonF TileClip::ring(const std::vector<TilePoint>& ring) const {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(ring.size()));
    bool isInside = true;
    for (const TilePoint point : ring) {
        const QPointF place = toPixels(point);
        if (!isFinite(point) || (!polygon.empty() && isNear(polygon.back(), place))) {
            continue;
        }
        isInside = isInside && holds(place);
        polygon.append(place);
    }
    if (isInside) {
        return polygon.size() < 3 ? QPolygonF() : polygon;
    }
    for (const HalfPlane& half : sidesOf(m_kept)) {
        if (polygon.size() < 3) {
            return {};
        }
        polygon = cut(polygon, half);
    }
    return polygon.size() < 3 ? QPolygonF() : polygon;
}

void TileClip::appendSegment(std::vector<QPolygonF>& lines, QPointF from, QPointF to) const {
    double first = 0;
    double last = 1;
    if (!holds(from) || !holds(to)) {
        // After Liang and Barsky: the part of the segment that lies in all four half planes.
        for (const HalfPlane& half : sidesOf(m_kept)) {
            const double fromDepth = half.depth(from);
            const double toDepth = half.depth(to);
            if (fromDepth < 0 && toDepth < 0) {
                return;
            }
            if (fromDepth < 0) {
                first = std::max(first, fromDepth / (fromDepth - toDepth));
            } else if (toDepth < 0) {
                last = std::min(last, fromDepth / (fromDepth - toDepth));
            }
        }
        if (first >= last) {
            return;
        }
    }
    const QPointF begin = between(from, to, first);
    const bool goesOn = first == 0 && !lines.empty() && lines.back().back() == from;
    if (!goesOn) {
        lines.push_back({begin});
    }
    lines.back().append(last == 1 ? to : between(from, to, last));
}

std::vector<QPolygonF> TileClip::line(const std::vector<TilePoint>& line) const {
    std::vector<QPolygonF> lines;
    std::optional<QPointF> place;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (!isFinite(line[i])) {
            continue;
        }
        const QPointF next = toPixels(line[i]);
        if (!place) {
            place = next;
        } else if (i + 1 == line.size() || !isNear(*place, next)) {
            appendSegment(lines, *place, next);
            place = next;
        }
    }
    return lines;
}

std::vector<QPolygonF> TileClip::outline(const std::vector<TilePoint>& ring) const {
    std::vector<QPolygonF> lines;
    std::vector<TilePoint> stretch;
    const auto draw = [&] {
        for (QPolygonF& part : line(stretch)) {
            lines.push_back(std::move(part));
        }
        stretch.clear();
    };
    for (const TilePoint point : ring) {
        if (!stretch.empty() && runsAlongTheTilesEdge(stretch.back(), point)) {
            draw();
        }
        stretch.push_back(point);
    }
    draw();
    return lines;
}

} // namespace vasker
