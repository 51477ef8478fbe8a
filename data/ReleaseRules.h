#pragma once
// The rules that the values of a release must keep, and the refusal of a release that breaks one.

#include "data/OpenMapRelease.h"

#include <array>
#include <cstddef>
#include <stop_token>
#include <string_view>

namespace vasker {

// All limits are inclusive. Lengths are counted in characters, see characterCount().
inline constexpr std::size_t maximumAssets = 10'000;
inline constexpr std::size_t maximumSources = 100;
inline constexpr std::size_t maximumNameLength = 1'000;
inline constexpr std::size_t maximumFacts = 50; ///< of one asset
inline constexpr std::size_t maximumFactValueLength = 10'000;
inline constexpr std::size_t minimumRoutePoints = 2;
inline constexpr std::size_t maximumRoutePoints = 300'000; ///< of all assets together
inline constexpr std::size_t sourceIDLength = 64;
inline constexpr double largestLongitude = 180; ///< degrees, east or west
inline constexpr double largestLatitude = 90;   ///< degrees, north or south

/// The datasets that a source may have.
inline constexpr std::array<std::string_view, 5> datasetKeys = {"npri-facility-locations-2024",
                                                                "ghgrp-facility-emissions",
                                                                "gem-goit-pipelines",
                                                                "gem-ggit-pipelines",
                                                                "gem-ggit-lng-terminals"};

/// Throws the OpenMapRelease::Refusal of the first rule that `release` breaks. Rules are checked in
/// this order, which is part of the behaviour: those of the release as a whole, those of each
/// source, those of each asset with its routes and facts, and the citations of the sources.
///
/// Throws Cancelled if `stop` asks to stop, which is checked for each asset.
void validate(const OpenMapRelease& release, const std::stop_token& stop = {});

} // namespace vasker
