#pragma once
// Rows of the tables to records of a release. Each value keeps the source and the period it comes
// from.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/Datasets.h"
#include "tools/openmap-release/packing/tables/GemPipelines.h"
#include "tools/openmap-release/packing/tables/GemTerminals.h"
#include "tools/openmap-release/packing/tables/Ghgrp.h"
#include "tools/openmap-release/packing/tables/JsonFiles.h"
#include "tools/openmap-release/packing/tables/Npri.h"

#include <span>
#include <string>
#include <string_view>

namespace vasker {

/// Where an NPRI record stands, and which table says so.
struct NpriPlacement {
    OpenMapRelease::Position position;
    enum class Basis { locationList, facilityTable } basis;
};

/// The record of an NPRI facility with the values of the GHGRP facilities that are the same one.
[[nodiscard]] OpenMapRelease::Asset npriRecord(const NpriFacility& facility,
                                               const NpriPlacement& placement,
                                               std::span<const GhgrpFacility* const> same,
                                               const SourceIds& ids);

/// The record of a GHGRP facility, which has a position.
[[nodiscard]] OpenMapRelease::Asset ghgrpRecord(const GhgrpFacility& facility,
                                                const SourceIds& ids);

/// The record of a terminal's unit, which has a position.
[[nodiscard]] OpenMapRelease::Asset terminalRecord(const GemTerminal& terminal,
                                                   const SourceIds& ids);

/// The record of a pipeline with at least one route.
[[nodiscard]] OpenMapRelease::Asset pipelineRecord(const GemPipeline& pipeline,
                                                   RouteFile routes,
                                                   std::string_view sourceID,
                                                   std::string_view period);

/// The vertex nearest, along the line, to the middle of the longest of `routes` (at least one); the
/// first where two are as near or as long. Lengths are great-circle lengths on a sphere.
[[nodiscard]] OpenMapRelease::Position middleVertex(std::span<const OpenMapRelease::Route> routes);

} // namespace vasker
