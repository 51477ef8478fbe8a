#pragma once
// The tables of an input, parsed, without tabs and without the rows that the description omits.

#include "tools/openmap-release/packing/Citations.h"
#include "tools/openmap-release/packing/PackInput.h"
#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <map>

namespace vasker {

class PackTables {
  public:
    /// Counts cells with tabs and omitted rows. Throws InputError for a table that is no CSV.
    /// `input` lives as long.
    PackTables(const PackInput& input, PackTally& tally);

    /// The table for `role`, or nullptr where none is described.
    [[nodiscard]] const CsvTable* find(TableRole role) const;
    /// Of every table that values are taken from.
    [[nodiscard]] Citations citations() const;

  private:
    const PackInput& m_input;
    std::map<TableRole, CsvTable> m_tables;
};

} // namespace vasker
