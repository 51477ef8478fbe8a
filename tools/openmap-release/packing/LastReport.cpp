#include "tools/openmap-release/packing/LastReport.h"

#include <algorithm>

namespace vasker {

void LastReport::add(TableRole table, int year, int until) {
    if (year > m_year) {
        m_year = year;
        m_table = table;
    }
    m_until = std::max(m_until, until);
}

std::string LastReport::status() const {
    return (m_year < m_until ? "Last reported for " : "Reported for ") + std::to_string(m_year);
}

} // namespace vasker
