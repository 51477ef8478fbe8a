#include "map/records/MarkerLayout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string_view>
#include <unordered_map>

namespace vasker {

namespace {

std::int64_t cell(double position, double size) {
    return static_cast<std::int64_t>(std::floor(position / size));
}

std::uint64_t key(std::int64_t column, std::int64_t row) {
    return (static_cast<std::uint64_t>(column) << 32U) ^
           (static_cast<std::uint64_t>(row) & 0xFFFF'FFFFU);
}

/// Points that keep a distance, in cells of that distance, so that only the neighbouring cells can
/// hold one that stands too near.
class SpacedPoints {
  public:
    /// Distances in map points.
    SpacedPoints(double width, double height) : m_width(width), m_height(height) {}

    /// Takes `point` if there is room.
    bool place(MapPoint point) {
        const std::int64_t column = cell(point.x, m_width);
        const std::int64_t row = cell(point.y, m_height);
        for (std::int64_t r = row - 1; r <= row + 1; ++r) {
            for (std::int64_t c = column - 1; c <= column + 1; ++c) {
                const auto found = m_cells.find(key(c, r));
                if (found != m_cells.end() && isNear(found->second, point)) {
                    return false;
                }
            }
        }
        m_cells.emplace(key(column, row), point); // a cell has room for one
        return true;
    }

  private:
    [[nodiscard]] bool isNear(MapPoint a, MapPoint b) const {
        return std::abs(a.x - b.x) < m_width && std::abs(a.y - b.y) < m_height;
    }

    double m_width;
    double m_height;
    std::unordered_map<std::uint64_t, MapPoint> m_cells;
};

/// What the dots drawn so far, from the top down, leave to see. Whoever lies under others at the
/// largest scale of a level does so at all of its scales: nearer together, discs cover more.
class DotCover {
  public:
    explicit DotCover(double scale) : m_scale(scale) {
        constexpr int directions = 16;
        for (int i = 0; i < directions; ++i) {
            const double angle = 2 * std::numbers::pi * i / directions;
            m_rim.push_back({radius * std::cos(angle), radius * std::sin(angle)});
        }
    }

    /// Draws a dot at `point` if any of it would be seen: its rim or its middle.
    bool place(MapPoint point) {
        const ScreenPoint center{point.x * m_scale, point.y * m_scale};
        const std::int64_t column = cell(center.x, cellSize);
        const std::int64_t row = cell(center.y, cellSize);
        m_near.clear();
        for (std::int64_t r = row - 1; r <= row + 1; ++r) {
            for (std::int64_t c = column - 1; c <= column + 1; ++c) {
                const auto found = m_cells.find(key(c, r));
                if (found != m_cells.end()) {
                    m_near.insert(m_near.end(), found->second.begin(), found->second.end());
                }
            }
        }
        const bool isHidden =
            isCovered(center) && std::all_of(m_rim.begin(), m_rim.end(), [&](ScreenPoint offset) {
                return isCovered({center.x + offset.x, center.y + offset.y});
            });
        if (!isHidden) {
            m_cells[key(column, row)].push_back(center);
        }
        return !isHidden;
    }

  private:
    static constexpr double radius = dotRadius + dotCasing;
    static constexpr double cellSize = 2 * radius;

    [[nodiscard]] bool isCovered(ScreenPoint point) const {
        return std::any_of(m_near.begin(), m_near.end(), [&](ScreenPoint other) {
            const double dx = point.x - other.x;
            const double dy = point.y - other.y;
            return dx * dx + dy * dy <= radius * radius;
        });
    }

    double m_scale;
    std::vector<ScreenPoint> m_rim;
    std::unordered_map<std::uint64_t, std::vector<ScreenPoint>> m_cells;
    std::vector<ScreenPoint> m_near; ///< the drawn dots around the one in question
};

} // namespace

std::vector<Marker> markersByPrecedence(const RecordSet& records) {
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

MarkerLayout markerLayout(const std::vector<Marker>& markers,
                          std::optional<AssetIndex> selected,
                          DetailLevel level) {
    MarkerLayout layout;
    SpacedPoints balloons(balloonSpacingX / level.minimumScale(),
                          balloonSpacingY / level.minimumScale());
    DotCover dots(level.maximumScale());
    const auto chosen = std::find_if(markers.begin(), markers.end(), [&](const Marker& marker) {
        return marker.asset == selected;
    });
    if (chosen != markers.end()) {
        balloons.place(chosen->point);
        layout.balloons.push_back(*chosen);
    }
    for (const Marker& marker : markers) {
        if (marker.asset == selected) {
            continue;
        }
        if (balloons.place(marker.point)) {
            layout.balloons.push_back(marker);
        } else if (dots.place(marker.point)) {
            layout.dots.push_back(marker);
        }
    }
    return layout;
}

} // namespace vasker
