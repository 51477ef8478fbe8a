#include "tools/openmap-release/packing/GemRecords.h"

#include "tools/openmap-release/GreatCircle.h"
#include "tools/openmap-release/RoutesText.h"
#include "tools/openmap-release/packing/FactWriter.h"

#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

namespace vasker {
namespace {

/// For each vertex, how far it is along the line.
std::vector<double> distancesAlong(const OpenMapRelease::Route& route) {
    std::vector<double> distances{0};
    for (std::size_t next = 1; next < route.size(); ++next) {
        distances.push_back(distances.back() + angleBetween(route[next - 1], route[next]));
    }
    return distances;
}

/// What a terminal's and a pipeline's record have in common; `row` is a GemTerminal or a
/// GemPipeline.
OpenMapRelease::Asset
recordOf(const auto& row, std::string_view kind, TableRole table, const Citations& citations) {
    const Citation& citation = citations.at(table);
    OpenMapRelease::Asset asset;
    asset.id = "GEM-" + row.id;
    asset.name = row.name;
    asset.kind = kind;
    asset.jurisdiction = row.jurisdiction;
    asset.sourceID = citation.sourceID;
    asset.status = row.status;
    asset.asOf = citation.period;
    asset.reportedCompany = row.owner;
    FactWriter(asset, citations).add(table, row.facts);
    return asset;
}

} // namespace

OpenMapRelease::Asset terminalRecord(const GemTerminal& terminal, const Citations& citations) {
    OpenMapRelease::Asset asset = recordOf(terminal, "lng_plant", TableRole::terminals, citations);
    asset.longitude = terminal.position.value().longitude;
    asset.latitude = terminal.position.value().latitude;
    return asset;
}

OpenMapRelease::Asset pipelineRecord(const GemPipeline& pipeline,
                                     RouteFile routes,
                                     TableRole table,
                                     const std::string& routesPeriod,
                                     const Citations& citations) {
    OpenMapRelease::Asset asset = recordOf(pipeline, "pipeline", table, citations);
    asset.routes = std::move(routes.routes);
    const OpenMapRelease::Position middle = middleVertex(asset.routes);
    asset.longitude = middle.longitude;
    asset.latitude = middle.latitude;
    FactWriter(asset, citations)
        .add(table, routesPeriod, "Route basis", "GEM route repository, " + routesText(asset));
    return asset;
}

OpenMapRelease::Position middleVertex(std::span<const OpenMapRelease::Route> routes) {
    std::vector<double> longest{-1};
    std::size_t chosen = 0;
    for (std::size_t place = 0; place < routes.size(); ++place) {
        std::vector<double> distances = distancesAlong(routes[place]);
        if (distances.back() > longest.back()) {
            longest = std::move(distances);
            chosen = place;
        }
    }
    const double middle = longest.back() / 2;
    std::size_t nearest = 0;
    for (std::size_t vertex = 1; vertex < longest.size(); ++vertex) {
        if (std::abs(longest[vertex] - middle) < std::abs(longest[nearest] - middle)) {
            nearest = vertex;
        }
    }
    return routes[chosen][nearest];
}

} // namespace vasker
