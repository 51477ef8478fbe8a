#include "map/records/MarkerLayout.h"

#include "map/geometry/PointGrid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

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
        const bool isCrowded = m_placed.anyNear(point, [&](MapPoint other, std::size_t) {
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
        : m_scale(scale), m_drawn(largest / scale, largest / scale, expected) {
        for (std::size_t i = 0; i < m_circle.size(); ++i) {
            const double angle = 2 * std::numbers::pi * static_cast<double>(i) /
                                 static_cast<double>(m_circle.size());
            m_circle[i] = {std::cos(angle), std::sin(angle)};
        }
    }

    /// Draws the dot of `marker` if any of it would be seen: its middle or its rim.
    bool place(const Marker& marker) {
        const MapPoint point = marker.point;
        const double radius = (dotRadiusOf(marker) + dotCasing) / m_scale;
        m_near.clear();
        static_cast<void>(m_drawn.anyNear(point, [&](MapPoint other, std::size_t number) {
            m_near.push_back({other, m_radii[number]});
            return false;
        }));
        const bool isHidden =
            isCovered(point) && std::all_of(m_circle.begin(), m_circle.end(), [&](MapPoint offset) {
                return isCovered({point.x + radius * offset.x, point.y + radius * offset.y});
            });
        if (!isHidden) {
            m_drawn.insert(point);
            m_radii.push_back(radius);
        }
        return !isHidden;
    }

  private:
    static constexpr double largest = 2 * (dotRadius + dotCasing); ///< dot, in logical pixels

    struct Disc {
        MapPoint center;
        double radius; ///< map points
    };

    [[nodiscard]] bool isCovered(MapPoint place) {
        const auto covers = [&](const Disc& dot) {
            const double dx = place.x - dot.center.x;
            const double dy = place.y - dot.center.y;
            return dx * dx + dy * dy <= dot.radius * dot.radius;
        };
        const auto found = std::find_if(m_near.begin(), m_near.end(), covers);
        if (found == m_near.end()) {
            return false;
        }
        std::iter_swap(m_near.begin(), found); // what is asked next lies beside this place
        return true;
    }

    double m_scale; ///< logical pixels per map point
    std::array<MapPoint, 32> m_circle{};
    PointGrid m_drawn;
    std::vector<double> m_radii; ///< of the drawn dots, map points
    std::vector<Disc> m_near;    ///< the drawn dots around the one in question
};

} // namespace

std::vector<Marker> markersByPriority(const RecordSet& records) {
    const LoadedRelease& loaded = *records.loaded;
    const auto& assets = loaded.index.release().assets;
    std::vector<std::vector<Marker>> ofRank(loaded.ranks.count());
    for (const AssetIndex index : *records.filtered) {
        if (!assets[index].hasRoute()) {
            const std::size_t rank = loaded.ranks.rank(index);
            ofRank[rank].push_back(
                {index, loaded.geometry.points()[index], loaded.ranks.isQuiet(rank)});
        }
    }
    std::vector<Marker> markers;
    markers.reserve(records.filtered->size());
    for (const std::vector<Marker>& each : ofRank) {
        markers.insert(markers.end(), each.begin(), each.end());
    }
    return markers;
}

MarkerLayout markerLayout(const std::vector<Marker>& markers, DetailLevel level) {
    MarkerLayout layout;
    PinSpacing pins(level.minimumScale(), markers.size());
    DotCover dots(level.maximumScale(), markers.size());
    for (const Marker& marker : markers) {
        if (pins.place(marker.point)) {
            layout.pins.push_back(marker);
        } else if (dots.place(marker)) {
            layout.dots.push_back(marker);
        }
    }
    return layout;
}

} // namespace vasker
