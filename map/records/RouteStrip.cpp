#include "map/records/RouteStrip.h"

#include <cmath>

namespace vasker {

namespace {

struct Vector {
    double x;
    double y;
};

Vector operator+(Vector a, Vector b) {
    return {a.x + b.x, a.y + b.y};
}

Vector operator*(double factor, Vector v) {
    return {factor * v.x, factor * v.y};
}

double dot(Vector a, Vector b) {
    return a.x * b.x + a.y * b.y;
}

/// Appends lines to a strip, one after the other.
class Pen {
  public:
    Pen(LineStrip& strip, Rgb color) : m_strip(strip), m_color(color) {}

    /// Begins a line at `point`, drawn towards `direction` (unit).
    void begin(Vector point, Vector direction) {
        m_startsStrip = true;
        addTip(point, direction, -1);
        add(point, normalOf(direction));
    }

    /// Continues through `point`, where the direction changes.
    void bend(Vector point, Vector before, Vector after) {
        const double cosine = dot(before, after);
        if (cosine < 0) { // a mitre would stick out: two round ends make a corner
            end(point, before);
            begin(point, after);
            return;
        }
        add(point, 1 / (1 + cosine) * (normalOf(before) + normalOf(after)));
    }

    void end(Vector point, Vector direction) {
        add(point, normalOf(direction));
        addTip(point, direction, 1);
    }

  private:
    static Vector normalOf(Vector direction) { return {-direction.y, direction.x}; }

    void add(Vector point, Vector normal) {
        push(point, normal, LineVertex::Corner::left);
        push(point, -1 * normal, LineVertex::Corner::right);
    }

    void addTip(Vector point, Vector direction, double sign) {
        const Vector normal = normalOf(direction);
        push(point, normal + sign * direction, LineVertex::Corner::leftTip);
        push(point, -1 * normal + sign * direction, LineVertex::Corner::rightTip);
    }

    void push(Vector point, Vector offset, LineVertex::Corner corner) {
        const LineVertex vertex{static_cast<float>(point.x),
                                static_cast<float>(point.y),
                                static_cast<float>(offset.x),
                                static_cast<float>(offset.y),
                                m_color[0],
                                m_color[1],
                                m_color[2],
                                corner};
        if (m_startsStrip && !m_strip.empty()) {
            m_strip.push_back(m_strip.back());
            m_strip.push_back(vertex);
        }
        m_startsStrip = false;
        m_strip.push_back(vertex);
    }

    LineStrip& m_strip;
    Rgb m_color;
    bool m_startsStrip = true;
};

/// A line without extent, such as a tiny loop at a far zoom: a dot as wide as the line.
void drawPoint(Pen& pen, Vector point) {
    const Vector east{1, 0};
    pen.begin(point, east);
    pen.end(point, east);
}

double screenLengthOf(std::span<const ScreenPoint> line) {
    double length = 0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        length += std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y);
    }
    return length;
}

void drawLine(Pen& pen, std::span<const ScreenPoint> line) {
    const auto at = [line](std::size_t i) { return Vector{line[i].x, line[i].y}; };
    if (line.size() == 1) {
        drawPoint(pen, at(0));
        return;
    }
    Vector before{};
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        const Vector way = at(i + 1) + -1 * at(i);
        const Vector direction = 1 / std::hypot(way.x, way.y) * way;
        if (i == 0) {
            pen.begin(at(0), direction);
        } else {
            pen.bend(at(i), before, direction);
        }
        before = direction;
    }
    pen.end(at(line.size() - 1), before);
}

} // namespace

LineStrip routeStrip(const RecordGeometry& geometry,
                     std::span<const RouteRun> runs,
                     const RouteColors& colors,
                     const Camera& camera,
                     double margin,
                     double mostPixels) {
    LineStrip strip;
    drawRouteLines(geometry,
                   runs,
                   colors,
                   lineViewOf(camera, margin),
                   [&](AssetIndex asset, std::span<const ScreenPoint> line) {
                       mostPixels -= lineCost + screenLengthOf(line);
                       if (mostPixels >= 0) {
                           Pen pen(strip, *colors[asset]);
                           drawLine(pen, line);
                       }
                   });
    for (LineVertex& vertex : strip) {
        vertex.x -= static_cast<float>(margin);
        vertex.y -= static_cast<float>(margin);
    }
    return strip;
}

} // namespace vasker
