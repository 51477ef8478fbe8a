#pragma once
// The kinds of tables that packing reads.

#include <span>
#include <string_view>

namespace vasker {

enum class TableRole {
    npriFacilities,
    npriLocations,
    npriReports,
    npriReportYears,
    npriSectors,
    npriReleases,
    ghgrpFacilities,
    ghgrpTotals,
    ghgrpGases,
    ghgrpLinks,
    ghgrpPetrinex,
    oilPipelines,
    gasPipelines,
    terminals,
    routeIndex,
};

struct TableRoleTraits {
    TableRole role;
    std::string_view key;       ///< in a description and in reports
    std::string_view idHeading; ///< the column by which rows are omitted
    enum class Need { required, optional } need;
    /// Whether values of it stand in the release, so that it is cited.
    enum class Citation { source, none } citation;
    /// Where the period of its values stands.
    enum class Period { description, column } period;
    enum class Routes { none, folder } routes = Routes::none;
};

/// All roles in the order in which a release declares their sources.
[[nodiscard]] std::span<const TableRoleTraits> tableRoles();
[[nodiscard]] const TableRoleTraits& traitsOf(TableRole role);

} // namespace vasker
