#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <csv.h>
#include <simdjson.h>

#include <algorithm>
#include <utility>

namespace vasker {
namespace {

/// libcsv's parser with the rows it has read; fed line by line, so that it knows the line.
class Parser {
  public:
    explicit Parser(const std::string& file) : m_file(file) {
        if (csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI) != 0) {
            throw std::bad_alloc();
        }
        // Blanks around a field belong to it (RFC 4180).
        csv_set_space_func(&m_parser, [](unsigned char) { return 0; });
    }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;
    Parser(Parser&&) = delete;
    Parser& operator=(Parser&&) = delete;
    ~Parser() { csv_free(&m_parser); }

    std::vector<CsvTable::Row> read(std::string_view bytes) {
        while (!bytes.empty()) {
            ++m_line;
            const std::size_t length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
            readLine(bytes.substr(0, length));
            bytes.remove_prefix(length);
        }
        if (csv_fini(&m_parser, onField, onRow, this) != 0) {
            throw InputError(m_file, m_rowLine, "a quote is not closed");
        }
        return std::move(m_rows);
    }

  private:
    void readLine(std::string_view line) {
        if (!simdjson::validate_utf8(line)) {
            throw InputError(m_file, m_line, "the text is not UTF-8");
        }
        if (!m_isInRow) {
            m_rowLine = m_line;
        }
        // Blank lines between rows open none; a row goes on after a line end within quotes.
        m_isInRow = m_isInRow || line.find_first_not_of("\r\n") != std::string_view::npos;
        if (csv_parse(&m_parser, line.data(), line.size(), onField, onRow, this) != line.size()) {
            throw InputError(m_file, m_line, "a quote stands where none belongs");
        }
        if (m_fields > CsvTable::maximumFields) {
            throw InputError(m_file,
                             m_line,
                             "more than " + std::to_string(CsvTable::maximumFields) +
                                 " fields in one table");
        }
    }

    static void onField(void* text, std::size_t length, void* self) {
        auto& parser = *static_cast<Parser*>(self);
        // A line of too many is refused as soon as it is read.
        if (++parser.m_fields <= CsvTable::maximumFields) {
            parser.m_cells.emplace_back(static_cast<const char*>(text), length);
        }
    }
    static void onRow(int /*terminator*/, void* self) {
        auto& parser = *static_cast<Parser*>(self);
        parser.m_rows.push_back({parser.m_rowLine, std::exchange(parser.m_cells, {})});
        parser.m_isInRow = false;
    }

    const std::string& m_file;
    csv_parser m_parser{};
    std::size_t m_line = 0;
    std::size_t m_rowLine = 0; ///< where the current or next row begins
    bool m_isInRow = false;
    std::size_t m_fields = 0;
    std::vector<std::string> m_cells;
    std::vector<CsvTable::Row> m_rows;
};

} // namespace

CsvTable::CsvTable(std::string file, std::string_view bytes) : m_file(std::move(file)) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byteOrderMark)) {
        bytes.remove_prefix(byteOrderMark.size());
    }
    m_rows = Parser(m_file).read(bytes);
    if (m_rows.empty()) {
        throw InputError(m_file, 1, "there is no heading line");
    }
    const Row headings = std::move(m_rows.front());
    m_rows.erase(m_rows.begin());
    for (std::size_t column = 0; column < headings.cells.size(); ++column) {
        const std::string& heading = headings.cells[column];
        m_columns.emplace(heading, column);
        m_columns.emplace(heading.substr(0, heading.find(" / ")), column);
    }
    for (const Row& row : m_rows) {
        if (row.cells.size() != headings.cells.size()) {
            refuse(row,
                   std::to_string(row.cells.size()) + " fields, but " +
                       std::to_string(headings.cells.size()) + " headings");
        }
    }
}

std::size_t CsvTable::columnOf(std::string_view heading) const {
    const auto found = m_columns.find(heading);
    if (found == m_columns.end()) {
        throw InputError(m_file, 1, "there is no column \"" + std::string(heading) + "\"");
    }
    return found->second;
}

std::vector<std::string> CsvTable::omit(std::string_view heading, const KeyedReasons& omitted) {
    const std::size_t column = columnOf(heading);
    std::vector<std::string> rows;
    std::erase_if(m_rows, [&](const Row& row) {
        const auto found = omitted.find(row.cells[column]);
        if (found != omitted.end()) {
            rows.push_back(found->first);
        }
        return found != omitted.end();
    });
    for (const auto& [key, reason] : omitted) {
        if (std::ranges::find(rows, key) == rows.end()) {
            throw InputError(
                m_file, 1, "no row has the " + std::string(heading) + " " + key + " to omit");
        }
    }
    return rows;
}

std::size_t CsvTable::replaceTabs() {
    std::size_t count = 0;
    for (Row& row : m_rows) {
        for (std::string& text : row.cells) {
            if (text.find('\t') != std::string::npos) {
                std::ranges::replace(text, '\t', ' ');
                ++count;
            }
        }
    }
    return count;
}

std::string_view CsvTable::cell(const Row& row, std::string_view heading) const {
    return row.cells[columnOf(heading)];
}

void CsvTable::refuse(const Row& row, std::string_view message) const {
    throw InputError(m_file, row.line, message);
}

} // namespace vasker
