#pragma once
// Invented, valid releases of any size up to the limits, for tests and benches. The same options
// give the same release on every machine. Nothing in them is a real facility, pipeline or company.

#include "data/OpenMapRelease.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace vasker {

struct SynthesisOptions {
    std::size_t records = 0;     ///< 1 to 10,000
    std::size_t routePoints = 0; ///< 0, or 2 to 300,000: the sum over all routes of all records
    std::size_t bytes = 0;       ///< the length of the JSON text; 0: as it comes
    std::uint64_t seed = 0;
};

/// No release has the numbers asked for; what() says why in one sentence.
class ImpossibleSynthesis final : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A release with exactly `records` records and `routePoints` route points, whose encode() is
/// exactly `bytes` long where `bytes` is not 0. One record in forty is a pipeline (none without
/// route points), the others are facilities of every kind; all five datasets are cited. Throws
/// ImpossibleSynthesis.
[[nodiscard]] OpenMapRelease synthesize(const SynthesisOptions& options);

/// encode() of synthesize().
[[nodiscard]] std::string synthesizeFile(const SynthesisOptions& options);

} // namespace vasker
