#pragma once
// The last report of a facility to the National Pollutant Release Inventory, as far as several
// tables know of it.

#include "tools/openmap-release/packing/TableRole.h"

#include <optional>
#include <string>

namespace vasker {

class LastReport {
  public:
    /// The facility reported for `year`, and `table` knows of reports up to the year `until`. Of
    /// tables that name the same year the one added first is cited.
    void add(TableRole table, int year, int until);

    /// The latest year of all tables.
    [[nodiscard]] int year() const noexcept { return m_year; }
    /// The table that names it.
    [[nodiscard]] TableRole table() const noexcept { return m_table; }
    /// "Reported for 2022" where no table reaches beyond that year, else "Last reported for 2019".
    [[nodiscard]] std::string status() const;

  private:
    int m_year = 0;
    int m_until = 0;
    TableRole m_table = TableRole::npriFacilities;
};

} // namespace vasker
