#include "tools/openmap-release/packing/tables/JsonFiles.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <simdjson.h>

#include <cmath>
#include <optional>

namespace vasker {
namespace {

namespace dom = simdjson::dom;

/// GeoJSON's own words for what is wrong; a plain exception until the file's name is added.
class Malformed final : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

double sixDecimals(double degrees) {
    return std::round(degrees * 1e6) / 1e6;
}

OpenMapRelease::Position position(dom::element element, RouteFile& file) {
    dom::array numbers;
    if (element.get(numbers) != simdjson::SUCCESS || numbers.size() < 2 || numbers.size() > 3) {
        throw Malformed("a position is not two or three numbers");
    }
    double longitude = 0;
    double latitude = 0;
    if (numbers.at(0).get(longitude) != simdjson::SUCCESS ||
        numbers.at(1).get(latitude) != simdjson::SUCCESS) {
        throw Malformed("a coordinate is not a number");
    }
    if (std::abs(longitude) > 180 || std::abs(latitude) > 90) {
        throw Malformed("a position is off the globe");
    }
    file.thirdCoordinates += numbers.size() == 3 ? 1U : 0U;
    return {sixDecimals(longitude), sixDecimals(latitude)};
}

void addLine(dom::element coordinates, RouteFile& file) {
    dom::array positions;
    if (coordinates.get(positions) != simdjson::SUCCESS) {
        throw Malformed("a line has no list of positions");
    }
    OpenMapRelease::Route route;
    route.reserve(positions.size());
    for (const dom::element element : positions) {
        route.push_back(position(element, file));
    }
    if (route.size() < 2) {
        ++file.loneVertices;
        return;
    }
    file.routes.push_back(std::move(route));
}

void addGeometry(dom::element geometry, RouteFile& file) {
    std::string_view type;
    dom::element coordinates;
    if (geometry["type"].get(type) != simdjson::SUCCESS ||
        geometry["coordinates"].get(coordinates) != simdjson::SUCCESS) {
        throw Malformed("a geometry lacks its type or its coordinates");
    }
    if (type == "LineString") {
        addLine(coordinates, file);
    } else if (type == "MultiLineString") {
        dom::array lines;
        if (coordinates.get(lines) != simdjson::SUCCESS) {
            throw Malformed("a multi-line has no list of lines");
        }
        for (const dom::element line : lines) {
            addLine(line, file);
        }
    } else if (type == "Point") {
        ++file.strayPoints;
    } else {
        throw Malformed("a geometry of type \"" + std::string(type) + "\" is not a line");
    }
}

RouteFile readFeatures(const dom::element root) {
    dom::array features;
    if (root["features"].get(features) != simdjson::SUCCESS) {
        throw Malformed("there is no list of features");
    }
    RouteFile file;
    for (const dom::element feature : features) {
        dom::element geometry;
        if (feature["geometry"].get(geometry) != simdjson::SUCCESS) {
            throw Malformed("a feature lacks its geometry");
        }
        if (!geometry.is_null()) {
            addGeometry(geometry, file);
        }
    }
    return file;
}

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

RouteFile readRouteFile(std::string_view file, std::string_view json) {
    try {
        dom::parser parser;
        return readFeatures(parser.parse(simdjson::padded_string(json)).value());
    } catch (const simdjson::simdjson_error& error) {
        throw InputError(file, error.what());
    } catch (const Malformed& error) {
        throw InputError(file, error.what());
    }
}

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
