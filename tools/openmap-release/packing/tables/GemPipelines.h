#pragma once
// Global Energy Monitor's two tables of pipelines: one for oil and natural-gas liquids, one for
// gas.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"
#include "tools/openmap-release/packing/tables/FactList.h"

#include <optional>
#include <string>
#include <vector>

namespace vasker {

struct GemPipeline {
    std::string id; ///< "P0001"
    std::string name;
    std::string status;
    std::string jurisdiction; ///< the country or countries, or provinces where both ends name one
    std::optional<std::string> owner;
    std::vector<ReportedFact> facts;
};

/// Throws InputError.
[[nodiscard]] std::vector<GemPipeline> readOilPipelines(const CsvTable& table);
/// Throws InputError.
[[nodiscard]] std::vector<GemPipeline> readGasPipelines(const CsvTable& table);

} // namespace vasker
