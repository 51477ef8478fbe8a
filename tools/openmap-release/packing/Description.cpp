#include "tools/openmap-release/packing/Description.h"

#include "data/ReleaseRules.h"
#include "data/WebAddress.h"
#include "tools/openmap-release/Suggestion.h"
#include "tools/openmap-release/packing/Toml.h"
#include "tools/openmap-release/packing/TomlText.h"
#include "tools/openmap-release/packing/tables/InputError.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <initializer_list>

namespace vasker {
namespace {

/// `text` with each run of blanks and line ends as one blank and none around it, so that a person
/// may break lines anywhere.
std::string unfolded(std::string_view text) {
    std::string words;
    bool isBetweenWords = false;
    for (const char byte : text) {
        if (byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t') {
            isBetweenWords = !words.empty();
            continue;
        }
        if (isBetweenWords) {
            words += ' ';
            isBetweenWords = false;
        }
        words += byte;
    }
    return words;
}

/// A table of the file with questions to its fields; refusals name line and field.
class Fields {
  public:
    Fields(std::string_view file, std::string path, const toml::table& table)
        : m_file(file), m_path(std::move(path)), m_table(table) {}

    [[noreturn]] void refuse(std::string_view key, std::string_view message) const {
        const toml::node* node = m_table.get(key);
        const toml::source_region& place = (node != nullptr ? *node : m_table).source();
        throw InputError(m_file,
                         place.begin.line,
                         fromAsciiToml(m_path + std::string(key)) + ": " + std::string(message));
    }

    void allow(std::initializer_list<std::string_view> keys) const {
        for (const auto& [key, node] : m_table) {
            if (std::ranges::find(keys, key.str()) == keys.end()) {
                throw InputError(m_file,
                                 key.source().begin.line,
                                 fromAsciiToml(m_path + std::string(key.str())) +
                                     ": unknown field" + suggestion(key.str(), keys));
            }
        }
    }

    [[nodiscard]] bool has(std::string_view key) const { return m_table.contains(key); }

    [[nodiscard]] std::string text(std::string_view key) const {
        const toml::node* node = m_table.get(key);
        return node == nullptr ? std::string() : checkedText(key, *node);
    }
    [[nodiscard]] std::string requiredText(std::string_view key) const {
        requireField(key);
        return text(key);
    }
    [[nodiscard]] std::string requiredAddress(std::string_view key) const {
        std::string address = requiredText(key);
        if (!secureURL(address)) {
            refuse(key, "\"" + address + "\" is no https address");
        }
        return address;
    }

    /// The texts of a list; none where there is no such field.
    [[nodiscard]] std::vector<std::string> texts(std::string_view key) const {
        std::vector<std::string> list;
        if (const toml::array* values = array(key)) {
            for (const toml::node& value : *values) {
                list.push_back(checkedText(key, value));
            }
        }
        return list;
    }
    [[nodiscard]] std::vector<std::string> requiredTexts(std::string_view key) const {
        requireField(key);
        std::vector<std::string> list = texts(key);
        if (list.empty()) {
            refuse(key, "at least one text is needed");
        }
        return list;
    }

    /// The table under `key`; refused where it is none.
    [[nodiscard]] Fields table(std::string_view key) const {
        requireField(key);
        const toml::table* inner = m_table[key].as_table();
        if (inner == nullptr) {
            refuse(key, "a table is needed");
        }
        return {m_file, m_path + std::string(key) + ".", *inner};
    }
    /// The tables of a list; none where there is no such field.
    [[nodiscard]] std::vector<Fields> tables(std::string_view key) const {
        std::vector<Fields> list;
        if (const toml::array* values = array(key)) {
            for (const toml::node& value : *values) {
                if (!value.is_table()) {
                    refuse(key, "a list of tables is needed");
                }
                list.emplace_back(m_file, m_path + std::string(key) + ".", *value.as_table());
            }
        }
        return list;
    }
    [[nodiscard]] std::vector<std::string> keys() const {
        std::vector<std::string> list;
        for (const auto& [key, node] : m_table) {
            list.emplace_back(key.str());
        }
        return list;
    }

  private:
    void requireField(std::string_view key) const {
        if (!has(key)) {
            refuse(key, "missing");
        }
    }
    [[nodiscard]] const toml::array* array(std::string_view key) const {
        if (has(key) && !m_table[key].is_array()) {
            refuse(key, "a list in brackets is needed");
        }
        return m_table[key].as_array();
    }
    [[nodiscard]] std::string checkedText(std::string_view key, const toml::node& node) const {
        const auto* value = node.as_string();
        if (value == nullptr) {
            refuse(key, "a text in quotes is needed");
        }
        std::string given = unfolded(fromAsciiToml(value->get()));
        if (!simdjson::validate_utf8(given)) {
            refuse(key, "the text is not UTF-8");
        }
        if (given.empty()) {
            refuse(key, "the text is empty");
        }
        return given;
    }

    std::string_view m_file;
    std::string m_path; ///< with its full stop, "table.npri-reports."; empty at the top
    const toml::table& m_table;
};

OpenMapRelease::Source readSource(const Fields& fields, const Fields& publishers) {
    const std::string key = fields.requiredText("publisher");
    if (!publishers.has(key)) {
        fields.refuse("publisher", "there is no table publisher." + key);
    }
    const Fields publisher = publishers.table(key);
    OpenMapRelease::Source source;
    source.publisher = publisher.requiredText("name");
    source.dataset = fields.requiredText("dataset");
    if (std::ranges::find(datasetKeys, source.dataset) == datasetKeys.end()) {
        fields.refuse("dataset",
                      "\"" + source.dataset + "\" is no dataset of a release" +
                          suggestion(source.dataset, datasetKeys));
    }
    source.sourceURL = fields.requiredAddress("page");
    source.licenceURL = publisher.requiredAddress("licence");
    source.attribution = fields.has("attribution") ? fields.text("attribution")
                                                   : publisher.requiredText("attribution");
    source.conditions = publisher.requiredText("conditions");
    source.modifications = fields.requiredText("modifications");
    return source;
}

Description::Table
readTable(const TableRoleTraits& traits, const Fields& fields, const Fields& publishers) {
    fields.allow({"file",
                  "publisher",
                  "dataset",
                  "page",
                  "attribution",
                  "modifications",
                  "period",
                  "routes",
                  "routes-period",
                  "omit"});
    Description::Table table;
    table.file = fields.requiredText("file");
    if (traits.period == TableRoleTraits::Period::description) {
        table.period = fields.requiredText("period");
    } else if (fields.has("period")) {
        fields.refuse("period", "a column of this table says it");
    }
    if (traits.citation == TableRoleTraits::Citation::source) {
        table.source = readSource(fields, publishers);
    }
    if (traits.routes == TableRoleTraits::Routes::folder) {
        table.routes = fields.requiredText("routes");
        table.routesPeriod = fields.requiredText("routes-period");
    }
    if (fields.has("omit")) {
        const Fields omitted = fields.table("omit");
        for (const std::string& id : omitted.keys()) {
            table.omitted.emplace(fromAsciiToml(id), omitted.requiredText(id));
        }
    }
    return table;
}

std::map<TableRole, Description::Table> readTables(const Fields& tables, const Fields& publishers) {
    std::vector<std::string_view> known;
    std::map<TableRole, Description::Table> read;
    for (const TableRoleTraits& traits : tableRoles()) {
        known.push_back(traits.key);
        if (traits.need == TableRoleTraits::Need::required || tables.has(traits.key)) {
            read.emplace(traits.role, readTable(traits, tables.table(traits.key), publishers));
        }
    }
    for (const std::string& key : tables.keys()) {
        if (std::ranges::find(known, key) == known.end()) {
            tables.refuse(key, "unknown table" + suggestion(key, known));
        }
    }
    return read;
}

std::vector<KindRule> readRules(const Fields& categories, std::string_view list) {
    std::vector<KindRule> rules;
    for (const Fields& fields : categories.tables(list)) {
        fields.allow({"kind", "naics", "sector", "petrinex", "words"});
        rules.push_back({fields.requiredText("kind"),
                         fields.text("naics"),
                         fields.text("sector"),
                         fields.text("petrinex"),
                         fields.texts("words")});
    }
    return rules;
}

KindRules readCategories(const Fields& categories) {
    categories.allow({"codes", "names", "rest"});
    KindRules rules{readRules(categories, "codes"),
                    readRules(categories, "names"),
                    readRules(categories, "rest")};
    if (rules.rest.empty() || !rules.rest.back().takesEverything()) {
        categories.refuse("rest", "the last rule has to take every facility");
    }
    return rules;
}

/// Whether a line of `text` (from 1) has a character beyond ASCII.
bool isBeyondAscii(std::string_view text, std::size_t line) {
    for (; line > 1; --line) {
        text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
    }
    return std::ranges::any_of(text.substr(0, text.find('\n')), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0x80U) != 0;
    });
}

toml::table parsed(std::string_view file, std::string_view toml) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (toml.starts_with(byteOrderMark)) {
        toml.remove_prefix(byteOrderMark.size());
    }
    if (!simdjson::validate_utf8(toml)) {
        throw InputError(file, "the text is not UTF-8");
    }
    try {
        return toml::parse(asciiToml(toml), file);
    } catch (const toml::parse_error& error) {
        const std::size_t line = error.source().begin.line;
        throw InputError(
            file,
            line,
            std::string(error.description()) +
                (isBeyondAscii(toml, line) ? " (a letter or quotation mark beyond ASCII?)" : ""));
    }
}

} // namespace

const Description::Table* Description::table(TableRole role) const {
    const auto found = tables.find(role);
    return found == tables.end() ? nullptr : &found->second;
}

bool Description::isSelectedIndustry(std::string_view naics) const {
    return std::ranges::any_of(
        industries, [&](const std::string& beginning) { return naics.starts_with(beginning); });
}

bool Description::isSelectedSector(std::string_view sector) const {
    return std::ranges::find(sectors, sector) != sectors.end();
}

Description readDescription(std::string_view file, std::string_view toml) {
    const toml::table root = parsed(file, toml);
    const Fields fields(file, "", root);
    fields.allow(
        {"release", "coverage", "limitations", "selection", "publisher", "table", "category"});
    const Fields publishers = fields.table("publisher");
    for (const std::string& key : publishers.keys()) {
        publishers.table(key).allow({"name", "licence", "attribution", "conditions"});
    }
    const Fields selection = fields.table("selection");
    selection.allow({"naics", "sectors"});
    return {std::string(file),
            fields.requiredText("release"),
            fields.requiredText("coverage"),
            fields.requiredTexts("limitations"),
            selection.requiredTexts("naics"),
            selection.requiredTexts("sectors"),
            readTables(fields.table("table"), publishers),
            readCategories(fields.table("category"))};
}

} // namespace vasker
