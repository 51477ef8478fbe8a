#pragma once
// Global Energy Monitor's table of terminals for liquefied natural gas, one row per unit.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"
#include "tools/openmap-release/packing/tables/FactList.h"

#include <optional>
#include <string>
#include <vector>

namespace vasker {

struct GemTerminal {
    std::string id;   ///< the unit's, "G100002034501"
    std::string name; ///< the terminal's
    std::string status;
    std::string jurisdiction; ///< the province, the country where none is named
    std::optional<std::string> owner;
    std::optional<OpenMapRelease::Position> position;
    std::vector<ReportedFact> facts;
};

/// Throws InputError.
[[nodiscard]] std::vector<GemTerminal> readTerminals(const CsvTable& table);

} // namespace vasker
