#pragma once
// Record sets for tests of the map.

#include "map/records/RecordSet.h"
#include "tests/support/ReleaseBuilder.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vasker {

/// All of the assets, in name order. Their ids are made unique.
inline RecordSet recordSetOf(std::vector<OpenMapRelease::Asset> assets) {
    OpenMapRelease release = makeRelease();
    for (std::size_t i = 0; i < assets.size(); ++i) {
        assets[i].id = "R-" + std::to_string(i);
    }
    release.assets = std::move(assets);
    RecordSet records;
    records.loaded = std::make_shared<const LoadedRelease>(
        std::make_shared<const OpenMapRelease>(std::move(release)), TextLocale("en"));
    records.filtered =
        std::make_shared<const std::vector<AssetIndex>>(records.loaded->index.filtered("", "all"));
    return records;
}

inline OpenMapRelease::Asset facilityAt(double latitude, double longitude, std::string kind) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.latitude = latitude;
    asset.longitude = longitude;
    asset.kind = std::move(kind);
    return asset;
}

inline OpenMapRelease::Asset pipelineAlong(std::vector<OpenMapRelease::Route> routes) {
    OpenMapRelease::Asset asset = makeAsset();
    asset.kind = "pipeline";
    asset.routes = std::move(routes);
    return asset;
}

} // namespace vasker
