#include "map/records/MarkerLayout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace vasker {

namespace {

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
    static std::int64_t cell(double position, double size) {
        return static_cast<std::int64_t>(std::floor(position / size));
    }
    static std::uint64_t key(std::int64_t column, std::int64_t row) {
        return (static_cast<std::uint64_t>(column) << 32U) ^
               (static_cast<std::uint64_t>(row) & 0xFFFF'FFFFU);
    }

    double m_width;
    double m_height;
    std::unordered_map<std::uint64_t, MapPoint> m_cells;
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
    SpacedPoints dots(coveredDotDistance / level.maximumScale(),
                      coveredDotDistance / level.maximumScale());
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
