#include "data/export/CsvExport.h"

#include "data/export/NumberText.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <string>
#include <string_view>
#include <system_error>

namespace vasker {
namespace {

constexpr std::string_view columns =
    "id,name,category,category_key,jurisdiction,status,company,latitude,longitude,fact,value,"
    "period,source,publisher,page,licence,attribution";
constexpr std::string_view headerCells = ",,,,\n";

constexpr bool needsQuotes(char byte) {
    return byte == ',' || byte == '"' || byte == '\r' || byte == '\n';
}

constexpr bool isRewritten(char byte) {
    return byte == '"' || byte == '\0';
}

bool isNumber(std::string_view cell) {
    double number = 0;
    const char* const end = cell.data() + cell.size();
    const auto [stopped, error] = std::from_chars(cell.data(), end, number);
    return error == std::errc() && stopped == end;
}

/// Whether a spreadsheet may take the cell for a formula, and follow what somebody published as
/// one.
bool mayBeFormula(std::string_view cell) {
    constexpr std::string_view beginnings = "=+-@\t\r";
    return !cell.empty() && beginnings.find(cell.front()) != std::string_view::npos &&
           !isNumber(cell);
}

/// A cell, quoted where it has to be, with an apostrophe before what may be a formula. The
/// character NUL, which no reader of CSV expects, becomes U+FFFD.
void addCell(std::string& text, std::string_view cell) {
    const bool quoted =
        std::ranges::any_of(cell, needsQuotes) || cell.starts_with(' ') || cell.ends_with(' ');
    text += quoted ? "\"" : "";
    text += mayBeFormula(cell) ? "'" : "";
    for (;;) {
        const auto* const special = std::ranges::find_if(cell, isRewritten);
        text.append(cell.begin(), special);
        if (special == cell.end()) {
            break;
        }
        text += *special == '"' ? "\"\"" : "\uFFFD";
        cell = {special + 1, cell.end()};
    }
    text += quoted ? "\"" : "";
}

void addCells(std::string& text, std::initializer_list<std::string_view> cells) {
    for (const std::string_view cell : cells) {
        addCell(text, cell);
        text += ',';
    }
}

/// Control characters as blanks: the name of a column is one line.
std::string oneLine(std::string text) {
    for (char& byte : text) {
        if (static_cast<unsigned char>(byte) < 0x20) {
            byte = ' ';
        }
    }
    return text;
}

std::string heading(const ExportHeader& header) {
    std::string text(columns);
    for (const std::string& name : {"release=" + header.releaseID,
                                    "sha256=" + header.digest,
                                    "query=" + header.query,
                                    "filter=" + header.filter}) {
        text += ',';
        addCell(text, oneLine(name));
    }
    return text + "\n";
}

void addSource(std::string& text, std::string_view period, const OpenMapRelease::Source& source) {
    addCells(text,
             {period, source.shortName(), source.publisher, source.sourceURL, source.licenceURL});
    addCell(text, source.attribution);
    text += headerCells;
}

/// The cells of a record that each of its rows repeats.
std::string recordCells(const OpenMapRelease::Asset& record) {
    std::string text;
    addCells(text,
             {record.id,
              record.name,
              record.category(),
              record.kind,
              record.jurisdiction,
              record.status,
              record.reportedCompany.value_or(""),
              numberText(record.latitude),
              numberText(record.longitude)});
    return text;
}

} // namespace

ExportOutcome exportCsv(const OpenMapRelease& release,
                        std::span<const AssetIndex> records,
                        const ExportHeader& header,
                        const ExportSink& sink) {
    ExportBuffer buffer(sink);
    std::string& text = buffer.text();
    text += heading(header);
    for (const AssetIndex place : records) {
        const OpenMapRelease::Asset& record = release.assets[place];
        const std::string cells = recordCells(record);
        text += cells;
        text += ",,";
        addSource(text, record.asOf, *release.source(record.sourceID));
        for (const OpenMapRelease::Fact& fact : record.facts) {
            text += cells;
            addCells(text, {fact.label, fact.value});
            addSource(text, fact.asOf, *release.source(fact.sourceID));
            if (!buffer.advance()) {
                return buffer.finish();
            }
        }
        if (!buffer.advance()) {
            break;
        }
    }
    return buffer.finish();
}

} // namespace vasker
