#include "map/geometry/LineDetail.h"

#include "map/geometry/Segment.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vasker {

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
