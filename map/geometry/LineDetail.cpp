#include "map/geometry/LineDetail.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vasker {

double distanceToSegment(MapPoint point, MapPoint a, MapPoint b) noexcept {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length2 = dx * dx + dy * dy;
    const double along =
        length2 > 0 ? std::clamp(((point.x - a.x) * dx + (point.y - a.y) * dy) / length2, 0.0, 1.0)
                    : 0.0;
    return std::hypot(point.x - (a.x + along * dx), point.y - (a.y + along * dy));
}

std::vector<float> lineDetail(std::span<const MapPoint> line) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    std::vector<float> detail(line.size(), 0.0F);
    if (line.empty()) {
        return detail;
    }
    detail.front() = detail.back() = infinity;

    struct Part {
        std::size_t first;
        std::size_t last;
        float limit; ///< the detail of the vertex that split off this part
    };
    std::vector<Part> parts{{0, line.size() - 1, infinity}};
    while (!parts.empty()) {
        const Part part = parts.back();
        parts.pop_back();
        std::size_t farthest = part.first;
        double distance = -1;
        for (std::size_t i = part.first + 1; i < part.last; ++i) {
            const double candidate = distanceToSegment(line[i], line[part.first], line[part.last]);
            if (candidate > distance) {
                distance = candidate;
                farthest = i;
            }
        }
        if (farthest == part.first) {
            continue;
        }
        detail[farthest] = std::min(static_cast<float>(distance), part.limit);
        parts.push_back({part.first, farthest, detail[farthest]});
        parts.push_back({farthest, part.last, detail[farthest]});
    }
    return detail;
}

} // namespace vasker
