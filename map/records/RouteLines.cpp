#include "map/records/RouteLines.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// Nearer to the camera than this, as w, nothing is drawn: it lies beside or behind it.
constexpr double nearestW = 0.05;

/// The part of a segment inside the view, as fractions of its length (Liang and Barsky 1984).
class Clip {
  public:
    Clip(ScreenPoint start, ScreenPoint end, const LineView& view) {
        cut(start.x, end.x - start.x, view.width);
        cut(start.y, end.y - start.y, view.height);
    }
    [[nodiscard]] bool isEmpty() const { return m_from >= m_to; }
    [[nodiscard]] double from() const { return m_from; }
    [[nodiscard]] double to() const { return m_to; }

  private:
    void cut(double start, double delta, double size) {
        if (delta == 0) {
            if (start < -lineReach || start >= size + lineReach) {
                m_to = 0;
            }
            return;
        }
        const double atLow = (-lineReach - start) / delta;
        const double atHigh = (size + lineReach - start) / delta;
        m_from = std::max(m_from, std::min(atLow, atHigh));
        m_to = std::min(m_to, std::max(atLow, atHigh));
    }

    double m_from = 0;
    double m_to = 1;
};

ScreenPoint pointBetween(ScreenPoint a, ScreenPoint b, double fraction) {
    return {a.x + fraction * (b.x - a.x), a.y + fraction * (b.y - a.y)};
}

PerspectivePoint
pointBetween(const PerspectivePoint& a, const PerspectivePoint& b, double fraction) {
    return {
        a.x + fraction * (b.x - a.x), a.y + fraction * (b.y - a.y), a.w + fraction * (b.w - a.w)};
}

/// Takes a line point by point and hands on the parts that the view shows.
class LineCutter {
  public:
    LineCutter(const LineView& view, const DrawLine& draw) : m_view(view), m_draw(draw) {}

    void begin(AssetIndex asset) {
        m_asset = asset;
        m_hasLast = false;
    }

    void add(const PerspectivePoint& point) {
        if (m_hasLast && (point.w < nearestW) != (m_last.w < nearestW)) {
            push(pointBetween(m_last, point, (nearestW - m_last.w) / (point.w - m_last.w)));
        }
        if (point.w < nearestW) {
            cut();
        } else {
            push(point);
        }
        m_last = point;
        m_hasLast = true;
    }

    void end() { cut(); }

  private:
    void push(const PerspectivePoint& point) {
        const ScreenPoint place{point.x / point.w, point.y / point.w};
        if (m_line.empty() || place != m_line.back()) {
            m_line.push_back(place);
        }
    }

    /// Draws what lies in the view of the line so far.
    void cut() {
        if (m_line.size() == 1 &&
            !Clip(m_line[0], {m_line[0].x + 1, m_line[0].y}, m_view).isEmpty()) {
            m_draw(m_asset, m_line);
        }
        m_part.clear();
        for (std::size_t i = 0; i + 1 < m_line.size(); ++i) {
            const Clip clip(m_line[i], m_line[i + 1], m_view);
            if (clip.isEmpty()) {
                finishPart();
                continue;
            }
            if (m_part.empty()) {
                m_part.push_back(pointBetween(m_line[i], m_line[i + 1], clip.from()));
            }
            const ScreenPoint last = pointBetween(m_line[i], m_line[i + 1], clip.to());
            if (last != m_part.back()) {
                m_part.push_back(last);
            }
            if (clip.to() < 1) {
                finishPart();
            }
        }
        finishPart();
        m_line.clear();
    }

    void finishPart() {
        if (m_part.size() > 1) {
            m_draw(m_asset, m_part);
        }
        m_part.clear();
    }

    const LineView& m_view;
    const DrawLine& m_draw;
    AssetIndex m_asset = 0;
    std::vector<ScreenPoint> m_line;
    std::vector<ScreenPoint> m_part;
    PerspectivePoint m_last{};
    bool m_hasLast = false;
};

} // namespace

LineView lineViewOf(const Camera& camera, double margin) {
    const Viewport view = camera.viewport();
    return {.project =
                [&camera, margin](MapPoint point) {
                    PerspectivePoint place = camera.worldToPerspective(point);
                    place.x += margin * place.w;
                    place.y += margin * place.w;
                    return place;
                },
            .width = view.width + 2 * margin,
            .height = view.height + 2 * margin,
            .seen = camera.visibleRect(margin + lineReach),
            .scale = camera.scale()};
}

void drawRouteLines(const RecordGeometry& geometry,
                    std::span<const RouteRun> runs,
                    const RouteColors& colors,
                    const LineView& view,
                    const DrawLine& draw) {
    const auto tolerance = static_cast<float>(routeTolerancePixels / view.scale);
    LineCutter cutter(view, draw);
    for (const double offset : worldCopyOffsets(view.seen)) {
        for (const RouteRun& run : runs) {
            if (!colors[run.asset] || !run.bounds.shifted(offset).intersects(view.seen)) {
                continue;
            }
            const auto vertices = geometry.vertices(run);
            const auto detail = geometry.detail(run);
            cutter.begin(run.asset);
            for (std::size_t i = 0; i < vertices.size(); ++i) {
                if (detail[i] > tolerance) {
                    cutter.add(view.project({vertices[i].x + offset, vertices[i].y}));
                }
            }
            cutter.end();
        }
    }
}

} // namespace vasker
