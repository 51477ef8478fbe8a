#include "map/records/NearRecords.h"

#include "map/geometry/GreatCircle.h"
#include "map/geometry/Segment.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace vasker {

namespace {

double squaredDistance(MapPoint a, MapPoint b) noexcept {
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

/// 0 inside.
double squaredDistanceToRect(MapPoint from, const MapRect& rect) noexcept {
    const MapPoint nearest{std::clamp(from.x, rect.x, rect.x + rect.width),
                           std::clamp(from.y, rect.y, rect.y + rect.height)};
    return squaredDistance(from, nearest);
}

/// Distances on the map plane: the same order as on the earth, near enough, at a fraction of the
/// cost.
class Search {
  public:
    Search(const RecordSet& records, const Camera& camera)
        : m_geometry(records.loaded->geometry), m_center(camera.center()) {}

    [[nodiscard]] MapPoint placeOf(AssetIndex asset) const {
        const auto runs = m_geometry.runsOf(asset);
        if (runs.empty()) {
            return inNearestCopy(m_geometry.points()[asset]);
        }
        MapPoint nearest{};
        double least = std::numeric_limits<double>::infinity();
        for (const RouteRun& run : runs) {
            const MapPoint from = offsetTo(run.bounds.center());
            if (squaredDistanceToRect(from, run.bounds) >= least) {
                continue;
            }
            const auto vertices = m_geometry.vertices(run);
            for (std::size_t end = 1; end < vertices.size(); ++end) {
                const MapPoint a = vertices[end - 1];
                const MapPoint b = vertices[end];
                const double along = nearestOnSegment(from, a, b);
                const MapPoint place{a.x + along * (b.x - a.x), a.y + along * (b.y - a.y)};
                if (const double distance = squaredDistance(from, place); distance < least) {
                    least = distance;
                    nearest = {place.x + m_center.x - from.x, place.y};
                }
            }
        }
        return nearest;
    }

    [[nodiscard]] NearRecord describe(AssetIndex asset, MapPoint place) const {
        const Coordinate from = mapPointToCoordinate(m_center);
        const Coordinate to = mapPointToCoordinate(place);
        return {asset, place, distanceMetres(from, to), bearingDegrees(from, to)};
    }

    [[nodiscard]] double squaredDistanceTo(MapPoint place) const noexcept {
        return squaredDistance(m_center, place);
    }

  private:
    [[nodiscard]] MapPoint inNearestCopy(MapPoint point) const noexcept {
        return {point.x + worldSize * std::round((m_center.x - point.x) / worldSize), point.y};
    }
    /// The centre, as seen from the copy of the world that is nearest to `point`.
    [[nodiscard]] MapPoint offsetTo(MapPoint point) const noexcept {
        return {m_center.x - (inNearestCopy(point).x - point.x), m_center.y};
    }

    const RecordGeometry& m_geometry;
    MapPoint m_center;
};

bool isInView(MapPoint place, const Camera& camera) {
    const PerspectivePoint seen = camera.worldToPerspective(place);
    return seen.w > 0 && camera.viewport().isFree({seen.x / seen.w, seen.y / seen.w});
}

/// How far `place` is from the centre along and across a direction on the screen, in map points.
struct Way {
    double along;
    double across;
};

Way wayTo(MapPoint place, ScreenDirection direction, const Camera& camera) {
    const double bearing = camera.pose().bearing * std::numbers::pi / 180;
    const double east = place.x - camera.center().x;
    const double south = place.y - camera.center().y;
    const double right = east * std::cos(bearing) + south * std::sin(bearing);
    const double down = south * std::cos(bearing) - east * std::sin(bearing);
    switch (direction) {
    case ScreenDirection::up:
        return {-down, right};
    case ScreenDirection::right:
        return {right, down};
    case ScreenDirection::down:
        return {down, right};
    case ScreenDirection::left:
        break;
    }
    return {-right, down};
}

template <typename Accept>
std::optional<NearRecord>
nearest(const RecordSet& records, const Camera& camera, const Accept& accept) {
    if (!records.loaded) {
        return std::nullopt;
    }
    const Search search(records, camera);
    std::optional<AssetIndex> found;
    MapPoint foundPlace{};
    double least = std::numeric_limits<double>::infinity();
    for (const AssetIndex asset : *records.filtered) {
        const MapPoint place = search.placeOf(asset);
        const double distance = search.squaredDistanceTo(place);
        if (distance < least && accept(place)) {
            found = asset;
            foundPlace = place;
            least = distance;
        }
    }
    return found ? std::optional(search.describe(*found, foundPlace)) : std::nullopt;
}

} // namespace

bool isAnyInView(const RecordSet& records, const Camera& camera) {
    return records.loaded &&
           std::ranges::any_of(*records.filtered,
                               [&camera, search = Search(records, camera)](AssetIndex asset) {
                                   return isInView(search.placeOf(asset), camera);
                               });
}

std::vector<NearRecord> recordsInView(const RecordSet& records, const Camera& camera) {
    std::vector<NearRecord> inView;
    if (!records.loaded) {
        return inView;
    }
    const Search search(records, camera);
    for (const AssetIndex asset : *records.filtered) {
        const MapPoint place = search.placeOf(asset);
        if (isInView(place, camera)) {
            inView.push_back(search.describe(asset, place));
        }
    }
    std::ranges::stable_sort(inView, {}, &NearRecord::metres);
    return inView;
}

std::optional<NearRecord>
nearestTowards(ScreenDirection direction, const RecordSet& records, const Camera& camera) {
    return nearest(records, camera, [&](MapPoint place) {
        const Way way = wayTo(place, direction, camera);
        return way.along * camera.scale() > 1 && way.along >= std::abs(way.across);
    });
}

std::optional<NearRecord> nearestRecord(const RecordSet& records, const Camera& camera) {
    return nearest(records, camera, [](MapPoint) { return true; });
}

} // namespace vasker
