#include "tools/openmap-release/packing/TextValue.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <simdjson.h>

namespace vasker {
namespace {

namespace dom = simdjson::dom;

/// The text of a value without the blanks behind it.
std::string_view rawText(simdjson::ondemand::value value) {
    simdjson::ondemand::json_type type = value.type();
    std::string_view raw;
    if (type == simdjson::ondemand::json_type::object) {
        simdjson::ondemand::object object = value.get_object().value();
        raw = object.raw_json();
    } else if (type == simdjson::ondemand::json_type::array) {
        simdjson::ondemand::array array = value.get_array().value();
        raw = array.raw_json();
    } else {
        raw = value.raw_json_token();
    }
    while (!raw.empty() && std::string_view(" \t\r\n").find(raw.back()) != std::string_view::npos) {
        raw.remove_suffix(1);
    }
    return raw;
}

} // namespace

std::string withTextValue(std::string_view file,
                          std::string_view json,
                          std::string_view key,
                          std::string_view value) {
    const std::string quoted = "\"" + std::string(value) + "\"";
    try {
        const simdjson::padded_string text(json);
        // The whole document first: a reading on demand overlooks errors that it does not pass.
        dom::parser whole;
        const dom::object checked = whole.parse(text).get_object().value();

        simdjson::ondemand::parser parser;
        simdjson::ondemand::document document = parser.iterate(text).value();
        std::string edited;
        std::size_t copied = 0;
        // Named: the loop's range would not keep a temporary object alive.
        simdjson::ondemand::object object = document.get_object().value();
        for (auto field : object) {
            const bool isKey = std::string_view(field.unescaped_key().value()) == key;
            const std::string_view raw = rawText(field.value().value());
            if (isKey) {
                const auto place = static_cast<std::size_t>(raw.data() - text.data());
                edited += json.substr(copied, place - copied);
                edited += quoted;
                copied = place + raw.size();
            }
        }
        if (copied == 0) {
            const std::size_t brace = json.rfind('}');
            const std::size_t last = json.find_last_not_of(" \t\r\n", brace - 1);
            edited = json.substr(0, last + 1);
            edited += (checked.size() == 0 ? "\n    \"" : ",\n    \"") + std::string(key) +
                      "\": " + quoted + "\n";
            copied = brace;
        }
        return edited.append(json.substr(copied));
    } catch (const simdjson::simdjson_error& error) {
        throw InputError(file, error.what());
    }
}

} // namespace vasker
