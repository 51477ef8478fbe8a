#include "map/records/RouteMesh.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// The core of a line is about two fifths of what is drawn, with its casing and smooth edges.
constexpr double squareReach = 0.4;

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

/// The part of a segment inside a tile, as fractions of its length (Liang and Barsky 1984).
struct Clip {
    double from = 0;
    double to = 1;
    [[nodiscard]] bool isEmpty() const { return from >= to; }

    void cut(double start, double delta, double size) {
        if (delta == 0) {
            if (start < 0 || start >= size) {
                to = 0;
            }
            return;
        }
        const double atZero = -start / delta;
        const double atSize = (size - start) / delta;
        from = std::max(from, std::min(atZero, atSize));
        to = std::min(to, std::max(atZero, atSize));
    }
};

/// Appends lines to a mesh, one after the other.
class Pen {
  public:
    Pen(RouteMesh& mesh, Rgb color, LineEnds ends) : m_mesh(mesh), m_color(color), m_ends(ends) {}

    /// Begins a line at `point`, drawn towards `direction` (unit). Where the tile cuts the line, it
    /// does not end.
    void begin(Vector point, Vector direction, bool isEnd) {
        m_startsStrip = true;
        if (isEnd && m_ends == LineEnds::round) {
            addTip(point, direction, -1);
        }
        add(point, normalOf(direction), (isEnd ? -reach() : 0) * direction);
    }

    /// Continues through `point`, where the direction changes.
    void bend(Vector point, Vector before, Vector after) {
        const double cosine = dot(before, after);
        if (cosine < 0) { // a mitre would stick out: two ends make a corner
            end(point, before, true);
            begin(point, after, true);
            return;
        }
        add(point, 1 / (1 + cosine) * (normalOf(before) + normalOf(after)), {0, 0});
    }

    void end(Vector point, Vector direction, bool isEnd) {
        add(point, normalOf(direction), (isEnd ? reach() : 0) * direction);
        if (isEnd && m_ends == LineEnds::round) {
            addTip(point, direction, 1);
        }
    }

  private:
    static Vector normalOf(Vector direction) { return {-direction.y, direction.x}; }

    /// How far beyond its point a line ends, in halves of its drawn width.
    [[nodiscard]] double reach() const { return m_ends == LineEnds::square ? squareReach : 0; }

    void add(Vector point, Vector normal, Vector shift) {
        push(point, normal + shift, RouteVertex::Corner::left);
        push(point, -1 * normal + shift, RouteVertex::Corner::right);
    }

    void addTip(Vector point, Vector direction, double sign) {
        const Vector normal = normalOf(direction);
        push(point, normal + sign * direction, RouteVertex::Corner::leftTip);
        push(point, -1 * normal + sign * direction, RouteVertex::Corner::rightTip);
    }

    void push(Vector point, Vector offset, RouteVertex::Corner corner) {
        const RouteVertex vertex{static_cast<float>(point.x),
                                 static_cast<float>(point.y),
                                 static_cast<float>(offset.x),
                                 static_cast<float>(offset.y),
                                 m_color[0],
                                 m_color[1],
                                 m_color[2],
                                 corner};
        if (m_startsStrip && !m_mesh.empty()) {
            m_mesh.push_back(m_mesh.back());
            m_mesh.push_back(vertex);
        }
        m_startsStrip = false;
        m_mesh.push_back(vertex);
    }

    RouteMesh& m_mesh;
    Rgb m_color;
    LineEnds m_ends;
    bool m_startsStrip = true;
};

struct Segment {
    Vector start;
    Vector end;
    Vector direction; ///< unit
    Clip clip;

    Segment(Vector from, Vector to, double tilePixels)
        : start(from), end(to), direction(to + -1 * from) {
        clip.cut(from.x, direction.x, tilePixels);
        clip.cut(from.y, direction.y, tilePixels);
        direction = 1 / std::hypot(direction.x, direction.y) * direction;
    }
    [[nodiscard]] Vector at(double fraction) const { return start + fraction * (end + -1 * start); }
};

/// A line without extent, such as a tiny loop at a far zoom: a dot as wide as the line.
void drawPoint(Pen& pen, Vector point, double tilePixels) {
    const Vector east{1, 0};
    if (point.x >= 0 && point.x < tilePixels && point.y >= 0 && point.y < tilePixels) {
        pen.begin(point, east, true);
        pen.end(point, east, true);
    }
}

void drawLine(Pen& pen, std::span<const Vector> line, double tilePixels) {
    if (line.size() == 1) {
        drawPoint(pen, line.front(), tilePixels);
        return;
    }
    bool drawing = false;
    Vector before{};
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        const Segment segment(line[i], line[i + 1], tilePixels);
        if (segment.clip.isEmpty()) {
            if (drawing) { // left the tile exactly at the vertex
                pen.end(segment.start, before, false);
                drawing = false;
            }
            continue;
        }
        if (!drawing) {
            pen.begin(
                segment.at(segment.clip.from), segment.direction, i == 0 && segment.clip.from == 0);
        } else {
            pen.bend(segment.start, before, segment.direction);
        }
        before = segment.direction;
        const bool isLast = i + 2 == line.size();
        drawing = segment.clip.to == 1 && !isLast;
        if (!drawing) {
            pen.end(segment.at(segment.clip.to), before, isLast && segment.clip.to == 1);
        }
    }
}

} // namespace

RouteMesh routeMesh(const RecordGeometry& geometry,
                    std::span<const RouteRun> runs,
                    const RouteColors& colors,
                    DetailLevel level,
                    TileIndex tile,
                    LineEnds ends) {
    const MapRect bounds = tile.bounds(level);
    const double scale = level.maximumScale();
    const auto tolerance = static_cast<float>(routeTolerancePixels / scale);

    RouteMesh mesh;
    std::vector<Vector> line;
    for (const RouteRun& run : runs) {
        const std::optional<Rgb>& color = colors[run.asset];
        if (!color || !run.bounds.intersects(bounds)) {
            continue;
        }
        const auto vertices = geometry.vertices(run);
        const auto detail = geometry.detail(run);
        line.clear();
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            if (detail[i] <= tolerance) {
                continue;
            }
            const Vector point{(vertices[i].x - bounds.x) * scale,
                               (vertices[i].y - bounds.y) * scale};
            if (line.empty() || point.x != line.back().x || point.y != line.back().y) {
                line.push_back(point);
            }
        }
        Pen pen(mesh, *color, ends);
        drawLine(pen, line, bounds.width * scale);
    }
    return mesh;
}

} // namespace vasker
