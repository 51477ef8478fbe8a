#include "tools/openmap-release/SyntheticRecords.h"

#include "tools/openmap-release/SyntheticRoute.h"
#include "tools/openmap-release/SyntheticText.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <set>
#include <string>
#include <string_view>

namespace vasker {
namespace {

/// About the mix of the packaged release, which has 119 pipelines among some thousand records.
constexpr std::size_t recordsPerPipeline = 40;

struct Dataset {
    std::string_view key;
    std::string_view publisher;
    std::string_view period;
};

constexpr auto datasets = std::to_array<Dataset>({
    {"npri-facility-locations-2024", "Synthetic Pollutant Register", "2024"},
    {"ghgrp-facility-emissions", "Synthetic Emissions Register", "2023"},
    {"gem-ggit-lng-terminals", "Synthetic Terminal Tracker", "September 2025"},
    {"gem-goit-pipelines", "Synthetic Oil Pipeline Tracker", "March 2025"},
    {"gem-ggit-pipelines", "Synthetic Gas Pipeline Tracker", "November 2025"},
});
constexpr std::size_t lngSource = 2;
constexpr std::size_t firstPipelineSource = 3;

/// "9f9f…" with the source's place in front: 64 digits, unlike any digest of a real file.
std::string sourceID(std::size_t place) {
    std::string id = std::to_string(place + 1);
    while (id.size() < 64) {
        id += "9f";
    }
    id.resize(64);
    return id;
}

/// How many points each of `pipelines` pipelines has: at least 2, a few of them thousands.
std::vector<std::size_t>
sharedPoints(std::size_t pipelines, std::size_t routePoints, RandomSequence& random) {
    std::vector<double> weights(pipelines);
    for (double& weight : weights) {
        const double drawn = random.unit();
        weight = 1.0 / (drawn * drawn + 0.002);
    }
    const double total = std::accumulate(weights.begin(), weights.end(), 0.0);
    const std::size_t spare = routePoints - 2 * pipelines;
    std::vector<std::size_t> points(pipelines);
    std::size_t given = 0;
    for (std::size_t place = 0; place < pipelines; ++place) {
        const double share = weights[place] / total * static_cast<double>(spare);
        const auto extra = std::min(static_cast<std::size_t>(share), spare - given);
        points[place] = 2 + extra;
        given += extra;
    }
    *std::max_element(points.begin(), points.end()) += spare - given;
    return points;
}

/// Most pipelines are one line; about one in eight is a network of up to 60.
std::size_t routeCount(std::size_t points, RandomSequence& random) {
    if (points < 4 || !random.onceIn(8)) {
        return 1;
    }
    return std::min<std::size_t>(points / 2, 2 + random.below(59));
}

std::vector<OpenMapRelease::Route> network(std::size_t points, RandomSequence& random) {
    const std::size_t count = routeCount(points, random);
    const SyntheticArea& area = syntheticArea(random);
    const double reach = random.unit();
    const double length = 0.15 + 22 * reach * reach * reach;
    std::vector<OpenMapRelease::Route> routes;
    std::size_t left = points;
    for (std::size_t place = 0; place < count; ++place) {
        const std::size_t others = count - place - 1;
        const std::size_t share = std::max<std::size_t>(2, left / (others + 1));
        const OpenMapRelease::Position start =
            place == 0 ? syntheticPoint(area, random)
                       : routes.front()[random.below(routes.front().size())];
        const double portion = place == 0 ? 1.0 : 0.25 * random.unit() + 0.02;
        routes.push_back(syntheticRoute(start, share, length * portion, random));
        left -= share;
    }
    return routes;
}

OpenMapRelease::Asset pipeline(std::size_t number, std::size_t points, RandomSequence& random) {
    constexpr auto statuses = std::to_array<std::string_view>(
        {"operating", "operating", "operating", "proposed", "construction", "cancelled"});
    const std::size_t source = firstPipelineSource + number % 2;
    OpenMapRelease::Asset asset;
    asset.id = "S-PIPE-" + std::to_string(number + 1);
    asset.name = syntheticPipelineName(random);
    asset.kind = "pipeline";
    asset.jurisdiction = random.onceIn(5) ? "Canada, United States" : "Canada";
    asset.sourceID = sourceID(source);
    asset.status = statuses[random.below(statuses.size())];
    asset.asOf = datasets[source].period;
    asset.reportedCompany = syntheticCompany(random);
    asset.routes = network(points, random);
    const OpenMapRelease::Route& longest = asset.routes.front();
    asset.longitude = longest[longest.size() / 2].longitude;
    asset.latitude = longest[longest.size() / 2].latitude;
    return asset;
}

OpenMapRelease::Asset facility(std::size_t number, RandomSequence& random) {
    const std::vector<std::string_view>& kinds = syntheticFacilityKinds();
    const SyntheticArea& area = syntheticArea(random);
    OpenMapRelease::Asset asset;
    asset.id = "S-" + std::to_string(100'000 + number);
    asset.kind = number < kinds.size() ? kinds[number] : syntheticFacilityKind(random);
    asset.name = syntheticFacilityName(asset.kind, random);
    asset.jurisdiction = area.jurisdiction;
    const std::size_t source = asset.kind == "lng_plant" ? lngSource : number % 2;
    asset.sourceID = sourceID(source);
    asset.asOf = datasets[source].period;
    asset.status = "Reported for " + asset.asOf;
    const OpenMapRelease::Position point = syntheticPoint(area, random);
    asset.longitude = point.longitude;
    asset.latitude = point.latitude;
    if (!random.onceIn(20)) {
        asset.reportedCompany = syntheticCompany(random);
    }
    return asset;
}

void citeWhatIsNotYetCited(std::vector<OpenMapRelease::Asset>& assets,
                           const std::vector<OpenMapRelease::Source>& sources) {
    std::set<std::string_view> cited;
    for (const OpenMapRelease::Asset& asset : assets) {
        cited.insert(asset.sourceID);
    }
    for (const OpenMapRelease::Source& source : sources) {
        if (!cited.contains(source.id)) {
            assets.front().facts.push_back(
                {"Also listed by", source.publisher, source.id, assets.front().asOf});
        }
    }
}

} // namespace

std::vector<OpenMapRelease::Source> syntheticSources() {
    std::vector<OpenMapRelease::Source> sources;
    for (std::size_t place = 0; place < datasets.size(); ++place) {
        OpenMapRelease::Source source;
        source.id = sourceID(place);
        source.publisher = datasets[place].publisher;
        source.dataset = datasets[place].key;
        source.sourceURL = "https://example.org/" + source.dataset;
        source.licenceURL = "https://example.org/licence";
        source.attribution = "Invented values; nobody needs to be credited.";
        source.conditions = "Free to use for tests and measurements.";
        source.modifications = "Everything in this source was invented by a program.";
        sources.push_back(std::move(source));
    }
    return sources;
}

std::vector<OpenMapRelease::Asset>
syntheticRecords(std::size_t records,
                 std::size_t routePoints,
                 const std::vector<OpenMapRelease::Source>& sources,
                 RandomSequence& random) {
    const std::size_t pipelines =
        routePoints == 0
            ? 0
            : std::clamp<std::size_t>(records / recordsPerPipeline, 1, routePoints / 2);
    std::vector<OpenMapRelease::Asset> assets;
    assets.reserve(records);
    if (pipelines > 0) {
        for (const std::size_t points : sharedPoints(pipelines, routePoints, random)) {
            assets.push_back(pipeline(assets.size(), points, random));
        }
    }
    while (assets.size() < records) {
        assets.push_back(facility(assets.size() - pipelines, random));
    }
    citeWhatIsNotYetCited(assets, sources);
    return assets;
}

} // namespace vasker
