#pragma once
// The National Pollutant Release Inventory's releases of a facility by substance, all media added
// together.

#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <map>
#include <string>
#include <vector>

namespace vasker {

struct NpriRelease {
    std::string substance; ///< as published
    std::string quantity;  ///< with its unit, "132.7233 tonnes"
};

struct NpriReleases {
    int year = 0; ///< the latest of the facility
    /// The common air pollutants first, in a fixed order, then the others by quantity; at most
    /// mostReleases.
    std::vector<NpriRelease> substances;
};

inline constexpr std::size_t mostReleases = 10;

/// By NPRI id without leading zeros. Counts rows of earlier years, substances beyond
/// mostReleases, and quantities whose last digits are rounding noise of a computer, which are cut.
/// Throws InputError, also for a unit other than tonnes and kilograms and for a substance that
/// stands twice in a facility's year.
[[nodiscard]] std::map<std::string, NpriReleases, std::less<>>
readNpriReleases(const CsvTable& table, PackTally& tally);

} // namespace vasker
