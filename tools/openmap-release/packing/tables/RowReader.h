#pragma once
// A row of a table, asked for what its cells say: texts, numbers, quantities, positions.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/Cells.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace vasker {

/// Refusals name file and line.
class RowReader {
  public:
    RowReader(const CsvTable& table, const CsvTable::Row& row) : m_table(table), m_row(row) {}

    [[nodiscard]] std::optional<std::string> text(std::string_view heading) const;
    /// Throws InputError where the cell says nothing.
    [[nodiscard]] std::string requiredText(std::string_view heading) const;
    /// As requiredText(), and only decimal digits.
    [[nodiscard]] std::string requiredDigits(std::string_view heading) const;
    /// As requiredDigits(), and a year from 1900 on.
    [[nodiscard]] int requiredYear(std::string_view heading) const;
    /// The English name of the province or territory that the cell names, "Alberta" or "AB".
    /// Throws InputError for any other text.
    [[nodiscard]] std::string requiredProvince(std::string_view heading) const;
    /// The name of a place; what people write where there is none is counted and left out.
    [[nodiscard]] std::optional<std::string>
    place(std::string_view heading, TableRole table, PackTally& tally) const;
    /// The number with its unit, "1,790 km"; nothing where the cell says nothing. Throws InputError
    /// where it is no number.
    [[nodiscard]] std::optional<std::string> quantity(std::string_view heading,
                                                      std::string_view unit) const;
    /// The texts of `headings` that say something, joined by ", ", none of them twice in a row.
    [[nodiscard]] std::optional<std::string>
    joined(std::initializer_list<std::string_view> headings) const;
    /// Nothing where a coordinate is not given or both are 0, which publishers write for "none".
    /// Throws InputError where one is no number or off the globe.
    [[nodiscard]] std::optional<OpenMapRelease::Position>
    position(std::string_view latitudeHeading, std::string_view longitudeHeading) const;
    [[noreturn]] void refuse(std::string_view message) const { m_table.refuse(m_row, message); }

  private:
    [[nodiscard]] std::optional<double> coordinate(std::string_view heading, double bound) const;

    const CsvTable& m_table;
    const CsvTable::Row& m_row;
};

} // namespace vasker
