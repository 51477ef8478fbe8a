#include "map/raster/LineCoverage.h"

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// Entries of the table for a square pixel: enough for each of the 255 steps of a core one pixel
/// wide.
constexpr float entriesPerSquare = 256;

/// A pixel is a disc of half a pixel here.
std::uint8_t coverageAt(double distance, double radius) {
    return static_cast<std::uint8_t>(
        std::lround(255 * std::clamp(radius + 0.5 - distance, 0.0, 1.0)));
}

/// The first pixel whose centre is not before `place`, from 0 to `size`.
int pixelFrom(float place, int size) {
    return static_cast<int>(std::ceil(std::clamp(place - 0.5F, 0.0F, static_cast<float>(size))));
}

} // namespace

LineCoverage::LineCoverage(double coreRadius, double casingRadius)
    : m_reach(static_cast<float>(casingRadius + 0.5)),
      m_coverages(static_cast<std::size_t>(m_reach * m_reach * entriesPerSquare) + 2) {
    for (std::size_t i = 0; i < m_coverages.size(); ++i) {
        const double distance =
            std::sqrt((static_cast<double>(i) + 0.5) / double{entriesPerSquare});
        m_coverages[i] = {coverageAt(distance, coreRadius), coverageAt(distance, casingRadius)};
    }
}

void LineCoverage::cover(std::span<const ScreenPoint> line,
                         CoverageMask& core,
                         CoverageMask& casing) const {
    if (line.size() == 1) {
        coverSegment(line[0], line[0], core, casing);
    }
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        coverSegment(line[i], line[i + 1], core, casing);
    }
}

void LineCoverage::coverSegment(ScreenPoint start,
                                ScreenPoint end,
                                CoverageMask& core,
                                CoverageMask& casing) const {
    const auto startX = static_cast<float>(start.x);
    const auto startY = static_cast<float>(start.y);
    const auto alongX = static_cast<float>(end.x - start.x);
    const auto alongY = static_cast<float>(end.y - start.y);
    const float squaredLength = alongX * alongX + alongY * alongY;
    const float inverse = squaredLength > 0 ? 1 / squaredLength : 0;
    const float reach = m_reach;
    // How far a row runs beside the line's middle, where the line crosses it.
    const bool crosses = std::abs(alongY) > 0.01F;
    const float slope = crosses ? alongX / alongY : 0;
    const float beside = reach * std::sqrt(1 + slope * slope);
    const int bottom = pixelFrom(startY + std::max(0.0F, alongY) + reach, casing.height());
    for (int y = pixelFrom(startY + std::min(0.0F, alongY) - reach, casing.height()); y < bottom;
         ++y) {
        const float down = static_cast<float>(y) + 0.5F - startY;
        float west = std::min(0.0F, alongX) - reach;
        float east = std::max(0.0F, alongX) + reach;
        if (crosses) {
            west = std::max(west, down * slope - beside);
            east = std::min(east, down * slope + beside);
        }
        const int from = pixelFrom(startX + west, casing.width());
        const int to = pixelFrom(startX + east, casing.width());
        if (from >= to) {
            continue;
        }
        std::uint8_t* const cores = core.touch(y, from, to);
        std::uint8_t* const casings = casing.touch(y, from, to);
        for (int x = from; x < to; ++x) {
            const float right = static_cast<float>(x) + 0.5F - startX;
            const float part = std::clamp((right * alongX + down * alongY) * inverse, 0.0F, 1.0F);
            const float offX = right - part * alongX;
            const float offY = down - part * alongY;
            const float squared = offX * offX + offY * offY;
            if (squared < reach * reach) {
                const Coverages covered =
                    m_coverages[static_cast<std::size_t>(squared * entriesPerSquare)];
                cores[x] = std::max(cores[x], covered.core);
                casings[x] = std::max(casings[x], covered.casing);
            }
        }
    }
}

} // namespace vasker
