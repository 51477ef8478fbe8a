#pragma once
// What the tables themselves do not say: who published them, under which licence, for which period.
// A person who packs newer files changes this file first.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/PackTally.h"

#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// Where the files lie in the input folder.
namespace inputfile {
inline constexpr std::string_view npriFacilities = "npri_facilities.csv";
inline constexpr std::string_view npriLocations = "npri_sources/npri_coordinates_2024.csv";
inline constexpr std::string_view ghgrpFacilities = "ghgrp_facilities.csv";
inline constexpr std::string_view ghgrpHistory = "ghgrp_sources/ghgrp_alberta_2004-2016.csv";
inline constexpr std::string_view oilPipelines = "gem_goit_pipelines.csv";
inline constexpr std::string_view gasPipelines = "gem_ggit_pipelines.csv";
inline constexpr std::string_view terminals = "gem_lng_terminals.csv";
inline constexpr std::string_view routeIndex = "routes/index.csv";
inline constexpr std::string_view oilRoutes = "routes/liquid";
inline constexpr std::string_view gasRoutes = "routes/gas";
} // namespace inputfile

/// The periods of the tables that have no column for theirs.
namespace period {
inline constexpr std::string_view npriLocations = "2024";
inline constexpr std::string_view oilPipelines = "March 2025";
inline constexpr std::string_view gasPipelines = "November 2025";
inline constexpr std::string_view terminals = "September 2025";
inline constexpr std::string_view routes = "7 April 2026";
} // namespace period

/// The source ids: the SHA-256 of each table.
struct SourceIds {
    std::string npriFacilities;
    std::string npriLocations;
    std::string ghgrpFacilities;
    std::string oilPipelines;
    std::string gasPipelines;
    std::string terminals;
};

inline constexpr std::string_view coverageName =
    "Canadian energy infrastructure: reporting facilities, LNG terminals and pipelines";

[[nodiscard]] std::vector<std::string> limitations();

/// All sources, in the order in which credits are read.
[[nodiscard]] std::vector<OpenMapRelease::Source> sources(const SourceIds& ids,
                                                          const PackTally& tally);

} // namespace vasker
