#pragma once
// What a folder of tables does not say about itself: who published each table, under which terms
// and for which period, what was changed before packing, and the release's own texts. A person
// writes it as a TOML file; docs/data.md tells its fields.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/KindRules.h"
#include "tools/openmap-release/packing/TableRole.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct Description {
    /// A table of the input folder.
    struct Table {
        std::string file;   ///< relative to the input folder
        std::string period; ///< of its values; empty where a column of the table says it
        /// Of a source: all that the release says of it but `id`, which is the table's digest.
        OpenMapRelease::Source source;
        std::string routes;       ///< of a table of pipelines: the folder of its route files
        std::string routesPeriod; ///< of a table of pipelines: the period of its routes
        /// Rows that are left out by hand: the id in the table's first key column, and why.
        std::map<std::string, std::string, std::less<>> omitted;
    };

    std::string file;      ///< the name for messages
    std::string releaseID; ///< the month of packing is added, "canada-energy-2026-11"
    std::string coverageName;
    std::vector<std::string> limitations;
    std::vector<std::string> industries; ///< how the NAICS codes of the industries selected begin
    std::vector<std::string> sectors;    ///< the key industrial sectors selected
    std::map<TableRole, Table> tables;   ///< every required role, and others as given
    KindRules categories;

    /// The table for `role`, or nullptr.
    [[nodiscard]] const Table* table(TableRole role) const;
    [[nodiscard]] bool isSelectedIndustry(std::string_view naics) const;
    [[nodiscard]] bool isSelectedSector(std::string_view sector) const;
};

/// The description in `toml`. `file` is its name for messages. Throws InputError with line and
/// field for what is no TOML, a field that is missing, unknown, empty or of the wrong type, and a
/// value that a release cannot hold.
[[nodiscard]] Description readDescription(std::string_view file, std::string_view toml);

} // namespace vasker
