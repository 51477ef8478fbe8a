#pragma once
// The ids of a table in which each stands once.

#include "tools/openmap-release/packing/tables/RowReader.h"

#include <set>
#include <string>
#include <string_view>

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

} // namespace vasker
