#pragma once
// A CSV file with a heading line, as UTF-8 text. The only file that knows libcsv.

#include "tools/openmap-release/packing/tables/InputError.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

class CsvTable {
  public:
    struct Row {
        std::size_t line; ///< the line on which the row begins, 1 is the headings'
        std::vector<std::string> cells;
    };

    /// Some 30 times those of the largest table that is packed; keeps memory below some 200 MB.
    static constexpr std::size_t maximumFields = 2'000'000;

    /// The rows of `bytes` (RFC 4180, LF or CRLF, a byte order mark is passed over); `file` is the
    /// name for messages. Throws InputError for a row that has another number of fields than the
    /// headings, a stray or missing quote, text that is not UTF-8, more than maximumFields fields,
    /// and a file without headings.
    CsvTable(std::string file, std::string_view bytes);

    /// Row keys, each with the reason why its rows are left out.
    using KeyedReasons = std::map<std::string, std::string, std::less<>>;
    /// Removes the rows whose cell under `heading` is a key of `omitted`; returns the keys of those
    /// rows. Throws InputError where a key has no row.
    std::vector<std::string> omit(std::string_view heading, const KeyedReasons& omitted);

    /// Makes each tab within a cell a blank; returns how many cells had one.
    std::size_t replaceTabs();

    [[nodiscard]] const std::vector<Row>& rows() const noexcept { return m_rows; }
    /// The cell under `heading`, as it stands. Lives as long as the table. Throws InputError where
    /// there is no such column. A heading in two languages, "City / Ville", goes by its first part
    /// as well.
    [[nodiscard]] std::string_view cell(const Row& row, std::string_view heading) const;
    [[noreturn]] void refuse(const Row& row, std::string_view message) const;

  private:
    [[nodiscard]] std::size_t columnOf(std::string_view heading) const;

    std::string m_file;
    std::map<std::string, std::size_t, std::less<>> m_columns;
    std::vector<Row> m_rows;
};

} // namespace vasker
