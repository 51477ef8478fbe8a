#pragma once
// What packing took, joined, dropped and corrected, table by table. The same counts make the report
// that a person reads and the last sentence of each source's modifications.

#include "tools/openmap-release/packing/TableRole.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// What happened to a row, a cell or a part of it.
enum class PackStep { taken, joined, dropped, corrected, noted };

class PackTally {
  public:
    /// Counts one of `things` (a plural: "rows without a position") and remembers its id.
    void add(TableRole table, PackStep step, std::string_view things, std::string id);
    /// Counts `number` of `things` that have no id worth telling.
    void add(TableRole table, PackStep step, std::string_view things, std::size_t number = 1);

    /// One line for each thing that happened at least once: the step, how often, the table and the
    /// things, with their ids where they are few. Sorted by step, then by table.
    [[nodiscard]] std::string report() const;
    /// "Counted in packing: rows as records, taken: 4,011; ..."; empty where nothing was counted.
    [[nodiscard]] std::string summary(TableRole table) const;
    /// How many of `things` were counted.
    [[nodiscard]] std::size_t
    count(TableRole table, PackStep step, std::string_view things) const noexcept;

  private:
    struct Entry {
        TableRole table;
        PackStep step;
        std::string things;
        std::size_t count = 0;
        std::vector<std::string> ids;
    };
    [[nodiscard]] Entry& entry(TableRole table, PackStep step, std::string_view things);

    std::vector<Entry> m_entries; ///< in the order in which they were first counted
};

} // namespace vasker
