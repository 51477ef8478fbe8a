#include "map/style/Dashes.h"

#include "map/style/HalfPlane.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vasker {

namespace {

using DrawDash = std::function<bool(const QPolygonF&)>;

double distance(QPointF a, QPointF b) {
    return std::hypot(b.x() - a.x(), b.y() - a.y());
}

/// The line in pieces that end where it crosses the straight lines along the edges of `tile`.
std::vector<QPolygonF> cutAtEdges(const QPolygonF& line, const QRectF& tile) {
    std::vector<QPolygonF> pieces{{line.front()}};
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QPointF from = line[i - 1];
        const QPointF to = line[i];
        std::vector<double> crossings;
        for (const HalfPlane& edge : sidesOf(tile)) {
            const double a = edge.depth(from);
            const double b = edge.depth(to);
            if ((a < 0) != (b < 0)) {
                crossings.push_back(a / (a - b));
            }
        }
        std::sort(crossings.begin(), crossings.end());
        for (const double part : crossings) {
            const QPointF crossing = between(from, to, part);
            pieces.back().append(crossing);
            pieces.push_back({crossing});
        }
        pieces.back().append(to);
    }
    return pieces;
}

/// Walks along a line and draws what lies under a dash; begins in the middle of one.
class DashWalk {
  public:
    DashWalk(QPointF start, double dash, double gap, const DrawDash& draw)
        : m_dash(dash), m_gap(gap), m_left(dash / 2), m_draw(draw),
          m_place(start), m_current{start} {}

    /// Whether the walk goes on.
    bool goTo(QPointF to) {
        const QPointF from = m_place;
        const double step = distance(from, to);
        double done = 0;
        while (step - done > m_left) {
            done += m_left;
            if (!turnAt(between(from, to, done / step))) {
                return false;
            }
        }
        m_left -= step - done;
        m_place = to;
        if (m_isDash) {
            m_current.append(to);
        }
        return true;
    }

    bool finish() { return !m_isDash || m_current.size() < 2 || m_draw(m_current); }

  private:
    bool turnAt(QPointF turn) {
        bool goesOn = true;
        if (m_isDash) {
            m_current.append(turn);
            goesOn = m_draw(m_current);
        }
        m_current = {turn};
        m_isDash = !m_isDash;
        m_left = m_isDash ? m_dash : m_gap;
        return goesOn;
    }

    double m_dash;
    double m_gap;
    double m_left; ///< until dash and gap change
    const DrawDash& m_draw;
    bool m_isDash = true;
    QPointF m_place;
    QPolygonF m_current;
};

/// A line that begins and ends in the middle of a dash; whole where it is too short for that.
bool drawBetweenEnds(const QPolygonF& line, double dash, double gap, const DrawDash& draw) {
    const double length = lengthOf(line);
    const double count = std::round(length / (dash + gap));
    if (count < 1) {
        return draw(line);
    }
    const double stretch = length / (count * (dash + gap));
    DashWalk walk(line.front(), dash * stretch, gap * stretch, draw);
    for (qsizetype i = 1; i < line.size(); ++i) {
        if (!walk.goTo(line[i])) {
            return false;
        }
    }
    return walk.finish();
}

} // namespace

double lengthOf(const QPolygonF& line) {
    double length = 0;
    for (qsizetype i = 1; i < line.size(); ++i) {
        length += distance(line[i - 1], line[i]);
    }
    return length;
}

void dashes(
    const QPolygonF& line, double dash, double gap, const QRectF& tile, const DrawDash& draw) {
    if (line.size() < 2) {
        return;
    }
    for (const QPolygonF& piece : cutAtEdges(line, tile)) {
        if (!drawBetweenEnds(piece, dash, gap, draw)) {
            return;
        }
    }
}

} // namespace vasker
