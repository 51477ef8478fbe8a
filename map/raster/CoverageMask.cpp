#include "map/raster/CoverageMask.h"

#include <algorithm>

namespace vasker {

namespace {

/// `coverage` of 256 parts of `color` over `below`; two channels of a pixel are computed at once.
std::uint32_t blended(std::uint32_t below, std::uint32_t color, std::uint32_t coverage) {
    constexpr std::uint32_t channels = 0x00FF00FF;
    const std::uint32_t rest = 256 - coverage;
    const std::uint32_t even =
        (((below & channels) * rest + (color & channels) * coverage) >> 8U) & channels;
    const std::uint32_t odd =
        (((below >> 8U) & channels) * rest + ((color >> 8U) & channels) * coverage) & ~channels;
    return even | odd;
}

} // namespace

CoverageMask::CoverageMask(int width, int height)
    : m_width(width), m_rows(static_cast<std::size_t>(height), Touched{width, 0}),
      m_coverage(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

std::uint8_t* CoverageMask::touch(int y, int from, int to) {
    Touched& row = m_rows[static_cast<std::size_t>(y)];
    row.from = std::min(row.from, from);
    row.to = std::max(row.to, to);
    return m_coverage.data() + index(0, y);
}

void CoverageMask::paint(QImage& image, const QColor& color) const {
    const std::uint32_t opaque = color.rgb();
    const auto alpha = static_cast<std::uint32_t>(color.alpha());
    for (int y = 0; y < height(); ++y) {
        const Touched& row = m_rows[static_cast<std::size_t>(y)];
        if (row.from >= row.to) {
            continue;
        }
        auto* const pixels = reinterpret_cast<std::uint32_t*>(image.scanLine(y));
        const std::uint8_t* const coverages = m_coverage.data() + index(0, y);
        for (int x = row.from; x < row.to; ++x) {
            if (const std::uint32_t covered = coverages[x] * alpha / 255U; covered > 0) {
                pixels[x] = blended(pixels[x], opaque, covered + (covered >> 7U));
            }
        }
    }
}

} // namespace vasker
