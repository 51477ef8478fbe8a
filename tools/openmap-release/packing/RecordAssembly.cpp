#include "tools/openmap-release/packing/RecordAssembly.h"

#include "tools/openmap-release/packing/KindRules.h"

#include <cmath>
#include <numbers>

namespace vasker {
namespace {

/// Adds facts of one source and period to a record.
class FactWriter {
  public:
    FactWriter(OpenMapRelease::Asset& asset, std::string_view sourceID, std::string_view period)
        : m_asset(asset), m_sourceID(sourceID), m_period(period) {}

    void add(std::string_view label, std::optional<std::string> value) const {
        if (value) {
            m_asset.facts.push_back({std::string(label),
                                     std::move(*value),
                                     std::string(m_sourceID),
                                     std::string(m_period)});
        }
    }
    void add(const std::vector<ReportedFact>& facts) const {
        for (const ReportedFact& fact : facts) {
            add(fact.label, fact.value);
        }
    }

  private:
    OpenMapRelease::Asset& m_asset;
    std::string_view m_sourceID;
    std::string_view m_period;
};

void place(OpenMapRelease::Asset& asset, const OpenMapRelease::Position& position) {
    asset.longitude = position.longitude;
    asset.latitude = position.latitude;
}

/// Great-circle distance on a sphere, as the angle in radians (haversine formula).
double angleBetween(const OpenMapRelease::Position& from, const OpenMapRelease::Position& to) {
    constexpr double radians = std::numbers::pi / 180;
    const double halfNorth = std::sin((to.latitude - from.latitude) * radians / 2);
    const double halfEast = std::sin((to.longitude - from.longitude) * radians / 2);
    const double square = halfNorth * halfNorth + std::cos(from.latitude * radians) *
                                                      std::cos(to.latitude * radians) * halfEast *
                                                      halfEast;
    return 2 * std::asin(std::sqrt(std::min(1.0, square)));
}

/// For each vertex, how far it is along the line.
std::vector<double> distancesAlong(const OpenMapRelease::Route& route) {
    std::vector<double> distances{0};
    for (std::size_t next = 1; next < route.size(); ++next) {
        distances.push_back(distances.back() + angleBetween(route[next - 1], route[next]));
    }
    return distances;
}

std::string routeBasis(const OpenMapRelease::Asset& asset) {
    std::size_t vertices = 0;
    for (const OpenMapRelease::Route& route : asset.routes) {
        vertices += route.size();
    }
    const auto counted = [](std::size_t number, const std::string& thing) {
        return groupedNumber(std::to_string(number)).value_or("") + " " + thing;
    };
    return "GEM route repository, " +
           counted(asset.routes.size(), asset.routes.size() == 1 ? "line" : "lines") + ", " +
           counted(vertices, "vertices");
}

} // namespace

OpenMapRelease::Asset npriRecord(const NpriFacility& facility,
                                 const NpriPlacement& placement,
                                 std::span<const GhgrpFacility* const> same,
                                 const SourceIds& ids) {
    OpenMapRelease::Asset asset;
    asset.id = "NPRI-" + facility.id;
    asset.name = facility.name;
    FacilityTraits traits{facility.name, {facility.naics}, facility.sectorCode};
    for (const GhgrpFacility* other : same) {
        traits.naics.push_back(other->naics);
    }
    asset.kind = facilityKind(traits);
    asset.jurisdiction = facility.province;
    asset.sourceID = ids.npriFacilities;
    asset.status = "Reported for " + facility.year;
    asset.asOf = facility.year;
    asset.reportedCompany = facility.company;
    place(asset, placement.position);

    const FactWriter npri(asset, ids.npriFacilities, facility.year);
    npri.add(facility.facts);
    if (placement.basis == NpriPlacement::Basis::locationList) {
        FactWriter(asset, ids.npriLocations, period::npriLocations)
            .add("Location basis", "NPRI location list of 2024");
    } else {
        npri.add("Location basis", "NPRI facility table for " + facility.year);
    }
    for (const GhgrpFacility* other : same) {
        const FactWriter ghgrp(asset, ids.ghgrpFacilities, other->year);
        ghgrp.add("Total emissions", other->emissions);
        ghgrp.add("Facility name (GHGRP)", other->name);
        ghgrp.add("Reporting company (GHGRP)", other->company);
        ghgrp.add("Industry (GHGRP)", other->industry);
        ghgrp.add("Industry code (NAICS, GHGRP)", other->naics);
        ghgrp.add("GHGRP ID", other->id);
        ghgrp.add("GHGRP facility page", other->page);
    }
    return asset;
}

OpenMapRelease::Asset ghgrpRecord(const GhgrpFacility& facility, const SourceIds& ids) {
    OpenMapRelease::Asset asset;
    asset.id = "GHGRP-" + facility.id;
    asset.name = facility.name;
    asset.kind = facilityKind({facility.name, {facility.naics}, ""});
    asset.jurisdiction = facility.province;
    asset.sourceID = ids.ghgrpFacilities;
    asset.status = "Reported for " + facility.year;
    asset.asOf = facility.year;
    asset.reportedCompany = facility.company;
    place(asset, facility.position.value());

    const FactWriter ghgrp(asset, ids.ghgrpFacilities, facility.year);
    ghgrp.add("Total emissions", facility.emissions);
    ghgrp.add("Industry", facility.industry);
    ghgrp.add("Industry code (NAICS)", facility.naics);
    ghgrp.add("City", facility.city);
    ghgrp.add("GHGRP ID", facility.id);
    ghgrp.add("Location basis", "GHGRP facility table for " + facility.year);
    ghgrp.add("GHGRP facility page", facility.page);
    return asset;
}

OpenMapRelease::Asset terminalRecord(const GemTerminal& terminal, const SourceIds& ids) {
    OpenMapRelease::Asset asset;
    asset.id = "GEM-" + terminal.id;
    asset.name = terminal.name;
    asset.kind = "lng_plant";
    asset.jurisdiction = terminal.jurisdiction;
    asset.sourceID = ids.terminals;
    asset.status = terminal.status;
    asset.asOf = period::terminals;
    asset.reportedCompany = terminal.owner;
    place(asset, terminal.position.value());
    FactWriter(asset, ids.terminals, period::terminals).add(terminal.facts);
    return asset;
}

OpenMapRelease::Asset pipelineRecord(const GemPipeline& pipeline,
                                     RouteFile routes,
                                     std::string_view sourceID,
                                     std::string_view period) {
    OpenMapRelease::Asset asset;
    asset.id = "GEM-" + pipeline.id;
    asset.name = pipeline.name;
    asset.kind = "pipeline";
    asset.jurisdiction = pipeline.jurisdiction;
    asset.sourceID = sourceID;
    asset.status = pipeline.status;
    asset.asOf = period;
    asset.reportedCompany = pipeline.owner;
    asset.routes = std::move(routes.routes);
    place(asset, middleVertex(asset.routes));
    FactWriter(asset, sourceID, period).add(pipeline.facts);
    FactWriter(asset, sourceID, period::routes).add("Route basis", routeBasis(asset));
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
