#pragma once
// Every record of a release projected to map points, made once, in the load task. Immutable; any
// thread.
//
// Routes are kept as runs: consecutive vertices of one route, at most maximumRunLength of them. A
// run shares its last vertex with the run that continues it. The run is the unit of simplification
// and of culling.

#include "data/OpenMapRelease.h"
#include "data/ReleaseIndex.h"
#include "map/geometry/MapRect.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vasker {

struct RouteRun {
    AssetIndex asset;
    std::uint32_t first; ///< into RecordGeometry::vertices()
    std::uint32_t count; ///< 2 or more
    MapRect bounds;
};

class RecordGeometry {
  public:
    /// `release` has been validated; it is not kept.
    explicit RecordGeometry(const OpenMapRelease& release);

    /// The point of every record, by AssetIndex.
    [[nodiscard]] const std::vector<MapPoint>& points() const noexcept { return m_points; }
    /// The runs of all routes, in the order of assets and routes.
    [[nodiscard]] const std::vector<RouteRun>& runs() const noexcept { return m_runs; }
    /// The runs of one record.
    [[nodiscard]] std::span<const RouteRun> runsOf(AssetIndex asset) const noexcept;
    [[nodiscard]] std::span<const MapPoint> vertices(const RouteRun& run) const noexcept {
        return {m_vertices.data() + run.first, run.count};
    }
    /// lineDetail() of the run, vertex by vertex, in map points.
    [[nodiscard]] std::span<const float> detail(const RouteRun& run) const noexcept {
        return {m_detail.data() + run.first, run.count};
    }

  private:
    void addRoute(AssetIndex asset, const OpenMapRelease::Route& route);

    std::vector<MapPoint> m_points;
    std::vector<RouteRun> m_runs;
    std::vector<std::uint32_t> m_firstRun; ///< by AssetIndex, and one past the last
    std::vector<MapPoint> m_vertices;
    std::vector<float> m_detail;
};

} // namespace vasker
