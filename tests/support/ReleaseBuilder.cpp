#include "tests/support/ReleaseBuilder.h"

#include "data/Digest.h"
#include "data/ReleaseWriter.h"

#include <stdexcept>

namespace vasker {

std::string sourceID(std::size_t number) {
    const std::string digits = std::to_string(number);
    return std::string(64 - digits.size(), 'a') + digits;
}

OpenMapRelease::Source makeSource(std::size_t number) {
    return {.id = sourceID(number),
            .publisher = "Environment and Climate Change Canada",
            .dataset = "npri-facility-locations-2024",
            .sourceURL = "https://data.example.ca/npri",
            .licenceURL = "https://open.example.ca/licence",
            .attribution = "Contains information licensed under an open licence.",
            .conditions = "Attribution",
            .modifications = "Selected columns"};
}

OpenMapRelease::Fact makeFact(std::string value) {
    return {.label = "Sulphur dioxide",
            .value = std::move(value),
            .sourceID = sourceID(),
            .asOf = "2016"};
}

OpenMapRelease::Asset makeAsset(std::size_t number) {
    return {.id = "A-" + std::to_string(number),
            .name = "Plant " + std::to_string(number),
            .kind = "gas_plant",
            .jurisdiction = "Alberta",
            .sourceID = sourceID(),
            .status = "Reported",
            .asOf = "2016",
            .latitude = 53.5,
            .longitude = -113.5,
            .reportedCompany = "Prairie Gas",
            .facts = {},
            .routes = {}};
}

OpenMapRelease::Route makeRoute(std::size_t points) {
    OpenMapRelease::Route route;
    for (std::size_t at = 0; at < points; ++at) {
        route.push_back({-113.5 + static_cast<double>(at % 100) / 64, 53.5});
    }
    return route;
}

OpenMapRelease makeRelease() {
    OpenMapRelease release{.schemaVersion = 1,
                           .releaseID = "2025.1",
                           .generatedAt = "2025-11-20T12:00:00Z",
                           .coverageName = "Canada",
                           .limitations = {"Not a survey."},
                           .sources = {makeSource()},
                           .assets = {makeAsset(0), makeAsset(1)}};
    release.assets[0].facts = {makeFact()};
    release.assets[1].reportedCompany.reset();
    release.assets[1].routes = {makeRoute()};
    return release;
}

OpenMapRelease makeReleaseOfNamesakes() {
    const auto record = [](std::string id, std::string name, std::string kind) {
        OpenMapRelease::Asset asset = makeAsset();
        asset.id = std::move(id);
        asset.name = std::move(name);
        asset.kind = std::move(kind);
        return asset;
    };
    OpenMapRelease release = makeRelease();
    release.assets = {record("ten", "Plant 10", "refinery"),
                      record("two", "plant 2", "Zinc"),
                      record("twin-b", "Twin", "gas_plant"),
                      record("twin-a", "Twin", "refinery"),
                      record("line", "Alder Line", "pipeline")};
    return release;
}

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const std::size_t at = text.find(from);
    if (at == std::string::npos || text.find(from, at + 1) != std::string::npos) {
        throw std::invalid_argument("not exactly once in the text: " + std::string(from));
    }
    return text.replace(at, from.size(), to);
}

OpenMapRelease decoded(std::string_view json) {
    return OpenMapRelease::decode(json, sha256(json));
}

std::string outcomeOf(std::string_view json) {
    try {
        static_cast<void>(decoded(json));
        return "ok";
    } catch (const OpenMapRelease::Refusal& refusal) {
        return std::string(nameOf(refusal.invalid())) + ": " + refusal.place();
    } catch (const std::exception& error) {
        const auto* const located = dynamic_cast<const OpenMapRelease::Located*>(&error);
        return std::string("decoding: ") + error.what() +
               (located == nullptr ? "" : " at " + located->place());
    }
}

std::string outcomeOf(const OpenMapRelease& release) {
    return outcomeOf(encode(release));
}

std::string_view nameOf(OpenMapRelease::Invalid invalid) {
    switch (invalid) {
    case OpenMapRelease::Invalid::oversized:
        return "oversized";
    case OpenMapRelease::Invalid::checksum:
        return "checksum";
    case OpenMapRelease::Invalid::schema:
        return "schema";
    case OpenMapRelease::Invalid::records:
        return "records";
    case OpenMapRelease::Invalid::provenance:
        return "provenance";
    case OpenMapRelease::Invalid::coordinates:
        return "coordinates";
    }
    return "";
}

} // namespace vasker
