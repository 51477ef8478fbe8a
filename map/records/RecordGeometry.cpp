#include "map/records/RecordGeometry.h"

#include "map/geometry/LineDetail.h"

#include <algorithm>

namespace vasker {

RecordGeometry::RecordGeometry(const OpenMapRelease& release) {
    std::size_t vertexCount = 0;
    for (const auto& asset : release.assets) {
        for (const auto& route : asset.routes) {
            vertexCount += route.size() + route.size() / maximumRunLength;
        }
    }
    m_vertices.reserve(vertexCount);
    m_detail.reserve(vertexCount);
    m_points.reserve(release.assets.size());
    m_firstRun.reserve(release.assets.size() + 1);

    for (const auto& asset : release.assets) {
        const auto index = static_cast<AssetIndex>(m_points.size());
        m_points.push_back(coordinateToMapPoint({asset.latitude, asset.longitude}));
        m_firstRun.push_back(static_cast<std::uint32_t>(m_runs.size()));
        for (const auto& route : asset.routes) {
            addRoute(index, route);
        }
    }
    m_firstRun.push_back(static_cast<std::uint32_t>(m_runs.size()));
}

std::span<const RouteRun> RecordGeometry::runsOf(AssetIndex asset) const noexcept {
    return std::span(m_runs).subspan(m_firstRun[asset], m_firstRun[asset + 1] - m_firstRun[asset]);
}

void RecordGeometry::addRoute(AssetIndex asset, const OpenMapRelease::Route& route) {
    for (std::size_t start = 0; start + 1 < route.size(); start += maximumRunLength - 1) {
        const std::size_t count = std::min(maximumRunLength, route.size() - start);
        RouteRun run{.asset = asset,
                     .first = static_cast<std::uint32_t>(m_vertices.size()),
                     .count = static_cast<std::uint32_t>(count),
                     .bounds = MapRect::null()};
        for (const auto& position : std::span(route).subspan(start, count)) {
            const MapPoint point = coordinateToMapPoint({position.latitude, position.longitude});
            m_vertices.push_back(point);
            run.bounds = run.bounds.united({point.x, point.y, 0, 0});
        }
        const std::vector<float> detail = lineDetail(vertices(run));
        m_detail.insert(m_detail.end(), detail.begin(), detail.end());
        m_runs.push_back(run);
    }
}

} // namespace vasker
