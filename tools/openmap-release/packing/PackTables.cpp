#include "tools/openmap-release/packing/PackTables.h"

#include "data/Digest.h"

#include <utility>

namespace vasker {

PackTables::PackTables(const PackInput& input, PackTally& tally) : m_input(input) {
    for (const auto& [role, table] : input.description.tables) {
        CsvTable parsed(table.file, input.tables.at(role));
        tally.add(role,
                  PackStep::corrected,
                  "cells with a tab, which became a blank",
                  parsed.replaceTabs());
        for (const std::string& key : parsed.omit(traitsOf(role).idHeading, table.omitted)) {
            tally.add(role,
                      PackStep::dropped,
                      "rows left out by hand (" + key + ": " + table.omitted.at(key) + ")");
        }
        m_tables.emplace(role, std::move(parsed));
    }
}

const CsvTable* PackTables::find(TableRole role) const {
    const auto found = m_tables.find(role);
    return found == m_tables.end() ? nullptr : &found->second;
}

Citations PackTables::citations() const {
    Citations citations;
    for (const auto& [role, table] : m_input.description.tables) {
        if (traitsOf(role).citation == TableRoleTraits::Citation::source) {
            citations.emplace(role, Citation{sha256(m_input.tables.at(role)), table.period});
        }
    }
    return citations;
}

} // namespace vasker
