#include "map/style/Dashes.h"

#include "map/style/HalfPlane.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

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

double lengthOf(const QPolygonF& line) {
    double length = 0;
    for (qsizetype i = 1; i < line.size(); ++i) {
        length += distance(line[i - 1], line[i]);
    }
    return length;
}

/// Walks along a line and keeps what lies under a dash; begins in the middle of one.
class DashWalk {
  public:
    DashWalk(QPointF start, double dash, double gap)
        : m_dash(dash), m_gap(gap), m_left(dash / 2), m_place(start), m_current{start} {}

    void goTo(QPointF to) {
        const QPointF from = m_place;
        const double step = distance(from, to);
        double done = 0;
        while (step - done > m_left) {
            done += m_left;
            turnAt(between(from, to, done / step));
        }
        m_left -= step - done;
        m_place = to;
        if (m_isDash) {
            m_current.append(to);
        }
    }

    [[nodiscard]] std::vector<QPolygonF> finish() {
        if (m_isDash && m_current.size() > 1) {
            m_dashes.push_back(std::move(m_current));
        }
        return std::move(m_dashes);
    }

  private:
    void turnAt(QPointF turn) {
        if (m_isDash) {
            m_current.append(turn);
            m_dashes.push_back(std::move(m_current));
        }
        m_current = {turn};
        m_isDash = !m_isDash;
        m_left = m_isDash ? m_dash : m_gap;
    }

    double m_dash;
    double m_gap;
    double m_left; ///< until dash and gap change
    bool m_isDash = true;
    QPointF m_place;
    QPolygonF m_current;
    std::vector<QPolygonF> m_dashes;
};

/// A line that begins and ends in the middle of a dash; whole where it is too short for that.
std::vector<QPolygonF> dashesBetweenEnds(const QPolygonF& line, double dash, double gap) {
    const double length = lengthOf(line);
    const double count = std::round(length / (dash + gap));
    if (count < 1) {
        return {line};
    }
    const double stretch = length / (count * (dash + gap));
    DashWalk walk(line.front(), dash * stretch, gap * stretch);
    for (qsizetype i = 1; i < line.size(); ++i) {
        walk.goTo(line[i]);
    }
    return walk.finish();
}

} // namespace

std::vector<QPolygonF> dashes(const QPolygonF& line, double dash, double gap, const QRectF& tile) {
    std::vector<QPolygonF> result;
    if (line.size() < 2) {
        return result;
    }
    for (const QPolygonF& piece : cutAtEdges(line, tile)) {
        for (QPolygonF& part : dashesBetweenEnds(piece, dash, gap)) {
            result.push_back(std::move(part));
        }
    }
    return result;
}

} // namespace vasker
