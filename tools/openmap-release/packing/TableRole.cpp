#include "tools/openmap-release/packing/TableRole.h"

#include <algorithm>
#include <array>

namespace vasker {

std::span<const TableRoleTraits> tableRoles() {
    using enum TableRole;
    using enum TableRoleTraits::Need;
    using enum TableRoleTraits::Citation;
    using enum TableRoleTraits::Period;
    using Routes = TableRoleTraits::Routes;
    static constexpr auto roles = std::to_array<TableRoleTraits>({
        {npriFacilities, "npri-facilities", "NPRI ID", required, source, column},
        {npriLocations, "npri-locations", "NPRI_id", required, source, description},
        {npriReports, "npri-reports", "NPRI_ID", optional, source, description},
        {npriReportYears, "npri-report-years", "NPRI_ID", optional, source, description},
        {npriSectors, "npri-sectors", "NPRI_ID", optional, source, description},
        {npriReleases, "npri-releases", "NPRI_ID", optional, source, description},
        {ghgrpFacilities, "ghgrp-facilities", "Facility ID", required, source, column},
        {ghgrpTotals, "ghgrp-totals", "GHGRP_ID", optional, source, column},
        {ghgrpGases, "ghgrp-gases", "GHGRP_ID", optional, source, column},
        {ghgrpPetrinex, "ghgrp-petrinex", "GHGRP_ID", optional, source, description},
        {ghgrpLinks, "ghgrp-links", "GHG ID No.", optional, none, column},
        {oilPipelines,
         "gem-oil-pipelines",
         "ProjectID",
         required,
         source,
         description,
         Routes::folder},
        {gasPipelines,
         "gem-gas-pipelines",
         "ProjectID",
         required,
         source,
         description,
         Routes::folder},
        {terminals, "gem-lng-terminals", "UnitID", required, source, description},
        {routeIndex, "gem-route-index", "ProjectID", required, none, column},
    });
    return roles;
}

const TableRoleTraits& traitsOf(TableRole role) {
    return *std::ranges::find(tableRoles(), role, &TableRoleTraits::role);
}

} // namespace vasker
