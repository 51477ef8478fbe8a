#pragma once
// Pipelines and terminals of Global Energy Monitor as records of a release.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/Citations.h"
#include "tools/openmap-release/packing/tables/GemPipelines.h"
#include "tools/openmap-release/packing/tables/GemTerminals.h"
#include "tools/openmap-release/packing/tables/RouteFile.h"

#include <span>
#include <string>

namespace vasker {

/// The record of a terminal's unit, which has a position.
[[nodiscard]] OpenMapRelease::Asset terminalRecord(const GemTerminal& terminal,
                                                   const Citations& citations);

/// The record of a pipeline with at least one route; `routesPeriod` is the period of the routes.
[[nodiscard]] OpenMapRelease::Asset pipelineRecord(const GemPipeline& pipeline,
                                                   RouteFile routes,
                                                   TableRole table,
                                                   const std::string& routesPeriod,
                                                   const Citations& citations);

/// The vertex nearest, along the line, to the middle of the longest of `routes` (at least one); the
/// first where two are as near or as long. Lengths are great-circle lengths on a sphere.
[[nodiscard]] OpenMapRelease::Position middleVertex(std::span<const OpenMapRelease::Route> routes);

} // namespace vasker
