#pragma once
// What a release has to say: the rules behind its types, each with the case that names its failure.

#include "data/OpenMapRelease.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace vasker {

// Limits, all inclusive. Lengths are in characters as people count them.
inline constexpr std::size_t maximumAssets = 10'000;
inline constexpr std::size_t maximumSources = 100;
inline constexpr std::size_t maximumNameLength = 1'000;
inline constexpr std::size_t maximumFacts = 50; ///< of one asset
inline constexpr std::size_t maximumFactValueLength = 10'000;
inline constexpr std::size_t minimumRoutePoints = 2;
inline constexpr std::size_t maximumRoutePoints = 300'000; ///< of the whole release
inline constexpr std::size_t sourceIDLength = 64;
inline constexpr double largestLongitude = 180; ///< degrees, either side of zero
inline constexpr double largestLatitude = 90;   ///< degrees, either side of zero

/// The datasets that a release may cite.
inline constexpr std::array<std::string_view, 5> datasetKeys = {"npri-facility-locations-2024",
                                                                "ghgrp-facility-emissions",
                                                                "gem-goit-pipelines",
                                                                "gem-ggit-pipelines",
                                                                "gem-ggit-lng-terminals"};

/// Throws the Refusal of the first rule that `release` breaks. The order is part of the behaviour:
/// the release as a whole, every source, every asset (its routes, then its facts), the citations.
void validate(const OpenMapRelease& release);

} // namespace vasker
