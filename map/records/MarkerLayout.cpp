#include "map/records/MarkerLayout.h"

#include "map/geometry/PointGrid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>
#include <unordered_map>

namespace vasker {

namespace {

/// Pins that keep their distance.
class PinSpacing {
  public:
    PinSpacing(double scale, std::size_t expected)
        : m_width(pinSpacingX / scale), m_height(pinSpacingY / scale),
          m_placed(m_width, m_height, expected) {}

    /// Places a pin at `point` if there is room.
    bool place(MapPoint point) {
        const bool isCrowded = m_placed.anyNear(point, [&](MapPoint other) {
            return std::abs(point.x - other.x) < m_width && std::abs(point.y - other.y) < m_height;
        });
        if (!isCrowded) {
            m_placed.insert(point);
        }
        return !isCrowded;
    }

  private:
    double m_width; ///< map points
    double m_height;
    PointGrid m_placed;
};

/// What the dots drawn so far, from the top down, leave to see. Whoever lies under others at the
/// largest scale of a level does so at all of its scales: nearer together, discs cover more.
class DotCover {
  public:
    DotCover(double scale, std::size_t expected)
        : m_radius((dotRadius + dotCasing) / scale), m_drawn(2 * m_radius, 2 * m_radius, expected) {
        for (std::size_t i = 0; i < m_rim.size(); ++i) {
            const double angle =
                2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(m_rim.size());
            m_rim[i] = {m_radius * std::cos(angle), m_radius * std::sin(angle)};
        }
    }

    /// Draws a dot at `point` if any of it would be seen: its middle or its rim.
    bool place(MapPoint point) {
        m_near.clear();
        static_cast<void>(m_drawn.anyNear(point, [&](MapPoint other) {
            m_near.push_back(other);
            return false;
        }));
        const bool isHidden =
            isCovered(point) && std::all_of(m_rim.begin(), m_rim.end(), [&](MapPoint offset) {
                return isCovered({point.x + offset.x, point.y + offset.y});
            });
        if (!isHidden) {
            m_drawn.insert(point);
        }
        return !isHidden;
    }

  private:
    [[nodiscard]] bool isCovered(MapPoint place) const {
        return std::any_of(m_near.begin(), m_near.end(), [&](MapPoint dot) {
            const double dx = place.x - dot.x;
            const double dy = place.y - dot.y;
            return dx * dx + dy * dy <= m_radius * m_radius;
        });
    }

    double m_radius; ///< map points
    std::array<MapPoint, 32> m_rim{};
    PointGrid m_drawn;
    std::vector<MapPoint> m_near; ///< the drawn dots around the one in question
};

/// All markers, to ask how many stand near a place.
class Neighbours {
  public:
    Neighbours(const std::vector<Marker>& markers, double scale)
        : m_distance(aloneDistance / scale), m_grid(m_distance, m_distance, markers.size()) {
        for (const Marker& marker : markers) {
            m_grid.insert(marker.point);
        }
    }
    /// Whether only one marker stands near the place of a marker: itself.
    [[nodiscard]] bool isAlone(MapPoint place) const {
        int near = 0;
        return !m_grid.anyNear(place, [&](MapPoint other) {
            const bool isNear = std::abs(other.x - place.x) < m_distance &&
                                std::abs(other.y - place.y) < m_distance;
            near += isNear ? 1 : 0;
            return near > 1;
        });
    }

  private:
    double m_distance; ///< map points
    PointGrid m_grid;
};

} // namespace

std::vector<Marker> markersByPriority(const RecordSet& records) {
    const auto& assets = records.loaded->index.release().assets;
    std::unordered_map<std::string_view, std::size_t> frequency;
    for (const auto& asset : assets) {
        frequency[asset.kind] += asset.hasRoute() ? 0U : 1U;
    }
    struct Candidate {
        Marker marker;
        std::size_t frequency;
    };
    std::vector<Candidate> candidates;
    candidates.reserve(records.filtered->size());
    for (const AssetIndex index : *records.filtered) {
        if (!assets[index].hasRoute()) {
            candidates.push_back(
                {{index, records.loaded->geometry.points()[index]}, frequency[assets[index].kind]});
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(), [](const auto& a, const auto& b) {
        return a.frequency < b.frequency;
    });
    std::vector<Marker> markers;
    markers.reserve(candidates.size());
    for (const Candidate& candidate : candidates) {
        markers.push_back(candidate.marker);
    }
    return markers;
}

MarkerLayout markerLayout(const std::vector<Marker>& markers, DetailLevel level) {
    MarkerLayout layout;
    PinSpacing pins(level.minimumScale(), markers.size());
    DotCover dots(level.maximumScale(), markers.size());
    const Neighbours neighbours(markers, level.minimumScale());
    for (const Marker& marker : markers) {
        if (pins.place(marker.point)) {
            layout.pins.push_back(marker);
            layout.pins.back().isAlone = neighbours.isAlone(marker.point);
        } else if (dots.place(marker.point)) {
            layout.dots.push_back(marker);
        }
    }
    return layout;
}

} // namespace vasker
