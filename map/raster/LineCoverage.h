#pragma once
// Covers pixels by lines of a constant width with round joins and caps, depending on how far the
// centre of a pixel is from the line. Each line has a core and a wider casing, which are covered in
// one pass.

#include "map/raster/CoverageMask.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vasker {

class LineCoverage {
  public:
    /// From the middle of a line to the edge of its core and of its casing, in pixels;
    /// 0 < core <= casing.
    LineCoverage(double coreRadius, double casingRadius);

    /// Covers what `line` shows in masks of one size; its places are pixels, and may lie outside.
    /// One place is a disc.
    void cover(std::span<const ScreenPoint> line, CoverageMask& core, CoverageMask& casing) const;

  private:
    /// What a pixel is covered, by the square of the distance of its centre from the line.
    struct Coverages {
        std::uint8_t core;
        std::uint8_t casing;
    };

    void coverSegment(ScreenPoint start,
                      ScreenPoint end,
                      CoverageMask& core,
                      CoverageMask& casing) const;

    float m_reach; ///< beyond it nothing is covered, in pixels
    std::vector<Coverages> m_coverages;
};

} // namespace vasker
