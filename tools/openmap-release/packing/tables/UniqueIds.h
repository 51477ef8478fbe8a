#pragma once
// The ids of a table in which each stands once.

#include "tools/openmap-release/packing/tables/RowReader.h"

#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace vasker {

class UniqueIds {
  public:
    /// `name` is what the ids are called in messages, "NPRI ID".
    explicit UniqueIds(std::string_view name) : m_name(name) {}

    /// Throws InputError where `id` was taken before.
    void take(const RowReader& row, const std::string& id) {
        if (!m_ids.insert(id).second) {
            row.refuse(std::string(m_name) + " " + id + " stands twice");
        }
    }

  private:
    std::string_view m_name;
    std::set<std::string> m_ids;
};

/// What `read` makes of each row of `table`, a record with an `id`. Throws InputError where an id
/// stands twice.
template <typename Read>
auto readUnique(const CsvTable& table, std::string_view name, const Read& read) {
    std::vector<std::invoke_result_t<Read, const RowReader&>> records;
    UniqueIds ids(name);
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        ids.take(row, records.emplace_back(read(row)).id);
    }
    return records;
}

} // namespace vasker
