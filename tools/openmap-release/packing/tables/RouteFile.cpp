#include "tools/openmap-release/packing/tables/RouteFile.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <simdjson.h>

#include <cmath>

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

} // namespace vasker
