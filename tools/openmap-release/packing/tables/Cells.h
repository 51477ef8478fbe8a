#pragma once
// What a cell of a published table says: nothing, a text, a number, a quantity, a position.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// A label and a value that a row reports; its source and period follow from the table.
struct ReportedFact {
    std::string label;
    std::string value;
};

/// The published text without blanks around it and without invisible characters (zero-width blanks
/// and joiners, soft hyphens, byte order marks); nothing where the cell is empty, "n/a" or "--".
[[nodiscard]] std::optional<std::string> publishedText(std::string_view cell);

/// "450,000.00" as "450,000", "14676" as "14,676", "0.50" as "0.5": digits grouped by thousands, no
/// zeros at the end of a fraction. Nothing where `text` is no plain decimal number.
[[nodiscard]] std::optional<std::string> groupedNumber(std::string_view text);

/// A row of a table with questions to its cells; refusals name file and line.
class RowReader {
  public:
    RowReader(const CsvTable& table, const CsvTable::Row& row) : m_table(table), m_row(row) {}

    [[nodiscard]] std::optional<std::string> text(std::string_view heading) const;
    /// Throws InputError where the cell says nothing.
    [[nodiscard]] std::string requiredText(std::string_view heading) const;
    /// As requiredText(), and only decimal digits.
    [[nodiscard]] std::string requiredDigits(std::string_view heading) const;
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

/// The facts of a row in the order in which they are added; what says nothing is left out.
class FactList {
  public:
    void add(std::string_view label, std::optional<std::string> value) {
        if (value) {
            m_facts.push_back({std::string(label), std::move(*value)});
        }
    }
    [[nodiscard]] std::vector<ReportedFact> take() && { return std::move(m_facts); }

  private:
    std::vector<ReportedFact> m_facts;
};

} // namespace vasker
