#pragma once
// What packing took, merged and dropped; and the report that a person reads.

#include <cstddef>
#include <string>
#include <vector>

namespace vasker {

struct PackTally {
    struct Facilities {
        std::size_t taken = 0;
        std::vector<std::string> withoutPosition; ///< ids that were dropped
    };
    struct Pipelines {
        std::size_t taken = 0;
        std::vector<std::string> withoutGeometry; ///< ids that were dropped
        std::vector<std::string> outsideCanada;   ///< ids that were dropped
        std::vector<std::string> withStrayPoints; ///< ids, once for each point that was left out
        std::vector<std::string> withLoneVertex;  ///< ids, once for each line that was left out
        std::vector<std::string> withThirdCoordinate; ///< ids
        std::vector<std::string> unknownRoutes;       ///< route files without a row
    };

    Facilities npri;
    std::size_t npriListPositions = 0;  ///< records placed by the newer list
    std::size_t npriTablePositions = 0; ///< records placed by their own table
    Facilities ghgrp;
    std::size_t ghgrpOtherIndustries = 0;
    std::vector<std::string> ghgrpMerged; ///< ids whose values went to an NPRI record
    std::size_t npriRecordsWithGhgrp = 0;
    std::vector<std::string> npriWithSeveralGhgrp; ///< ids
    std::vector<std::string> changedLinks; ///< merged GHGRP ids that once named another NPRI id
    Facilities terminals;
    Pipelines oil;
    Pipelines gas;
};

/// One line for each thing that happened at least once: what ("taken", "merged", "dropped" or
/// "noted"), how often, and to what, with the ids where they are few.
[[nodiscard]] std::string reportText(const PackTally& tally);

} // namespace vasker
