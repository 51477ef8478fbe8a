#pragma once
// Invented pipeline lines and facility points over Canada. No library mathematics beyond the square
// root, whose result IEEE 754 fixes, so that a seed means the same lines everywhere.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/RandomSequence.h"

#include <cstddef>

namespace vasker {

/// A part of the country in which facilities stand close together, or far apart.
struct SyntheticArea {
    const char* jurisdiction;
    double longitude; ///< degrees, the middle
    double latitude;  ///< degrees, the middle
    double reach;     ///< degrees of latitude from the middle to the rim
    std::size_t weight;
};

/// An area, drawn by weight: dense in Alberta, British Columbia and Saskatchewan, sparse elsewhere.
[[nodiscard]] const SyntheticArea& syntheticArea(RandomSequence& random);

/// A point in `area`, six decimals, within latitudes 42 to 70 and longitudes -140 to -53.
[[nodiscard]] OpenMapRelease::Position syntheticPoint(const SyntheticArea& area,
                                                      RandomSequence& random);

/// A smooth random walk of exactly `points` positions (at least 2) from `start`, about
/// `lengthDegrees` long, turned back where it would leave the same bounds.
[[nodiscard]] OpenMapRelease::Route syntheticRoute(OpenMapRelease::Position start,
                                                   std::size_t points,
                                                   double lengthDegrees,
                                                   RandomSequence& random);

} // namespace vasker
