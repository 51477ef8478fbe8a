#include "tools/openmap-release/packing/TableRole.h"

#include <algorithm>
#include <array>

namespace vasker {
namespace {

using Need = TableRoleTraits::Need;
using Citation = TableRoleTraits::Citation;
using Period = TableRoleTraits::Period;
using Routes = TableRoleTraits::Routes;

constexpr auto roles = std::to_array<TableRoleTraits>({
    {TableRole::npriFacilities,
     "npri-facilities",
     "NPRI ID",
     Need::required,
     Citation::source,
     Period::column},
    {TableRole::npriLocations,
     "npri-locations",
     "NPRI_id",
     Need::required,
     Citation::source,
     Period::description},
    {TableRole::npriReports,
     "npri-reports",
     "NPRI_ID",
     Need::optional,
     Citation::source,
     Period::description},
    {TableRole::npriReportYears,
     "npri-report-years",
     "NPRI_ID",
     Need::optional,
     Citation::source,
     Period::description},
    {TableRole::npriSectors,
     "npri-sectors",
     "NPRI_ID",
     Need::optional,
     Citation::source,
     Period::description},
    {TableRole::npriReleases,
     "npri-releases",
     "NPRI_ID",
     Need::optional,
     Citation::source,
     Period::description},
    {TableRole::ghgrpFacilities,
     "ghgrp-facilities",
     "Facility ID",
     Need::required,
     Citation::source,
     Period::column},
    {TableRole::ghgrpTotals,
     "ghgrp-totals",
     "GHGRP_ID",
     Need::optional,
     Citation::source,
     Period::column},
    {TableRole::ghgrpGases,
     "ghgrp-gases",
     "GHGRP_ID",
     Need::optional,
     Citation::source,
     Period::column},
    {TableRole::ghgrpPetrinex,
     "ghgrp-petrinex",
     "GHGRP_ID",
     Need::optional,
     Citation::source,
     Period::description},
    {TableRole::ghgrpLinks,
     "ghgrp-links",
     "GHG ID No.",
     Need::optional,
     Citation::none,
     Period::column},
    {TableRole::oilPipelines,
     "gem-oil-pipelines",
     "ProjectID",
     Need::required,
     Citation::source,
     Period::description,
     Routes::folder},
    {TableRole::gasPipelines,
     "gem-gas-pipelines",
     "ProjectID",
     Need::required,
     Citation::source,
     Period::description,
     Routes::folder},
    {TableRole::terminals,
     "gem-lng-terminals",
     "UnitID",
     Need::required,
     Citation::source,
     Period::description},
    {TableRole::routeIndex,
     "gem-route-index",
     "ProjectID",
     Need::required,
     Citation::none,
     Period::column},
});

} // namespace

std::span<const TableRoleTraits> tableRoles() {
    return roles;
}

const TableRoleTraits& traitsOf(TableRole role) {
    return *std::ranges::find(roles, role, &TableRoleTraits::role);
}

} // namespace vasker
