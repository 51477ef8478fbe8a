#include "map/basemap/TileGeneration.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vasker {

bool isRelated(TileKey a, TileKey b) noexcept {
    const int zoom = std::min(a.zoom, b.zoom);
    return a.ancestor(a.zoom - zoom) == b.ancestor(b.zoom - zoom);
}

TileGeneration::TileGeneration(double ownScale, int ownZoom, const BasemapView& view)
    : scale(ownScale), zoom(ownZoom), devicePixelsPerPixel(view.devicePixelsPerPixel),
      theme(view.theme), language(view.language), overlayRevision(view.overlayRevision) {}

bool TileGeneration::looksLike(const BasemapView& view) const noexcept {
    return theme == view.theme && language == view.language &&
           devicePixelsPerPixel == view.devicePixelsPerPixel;
}

bool TileGeneration::covers(const std::vector<CoverTile>& cover) const {
    return std::ranges::all_of(cover,
                               [this](const CoverTile& tile) { return tiles.contains(tile.key); });
}

bool TileGeneration::coversBare(const std::vector<CoverTile>& cover) const {
    return std::ranges::all_of(cover, [this](const CoverTile& tile) {
        return tiles.contains(tile.key) || bare.contains(tile.key);
    });
}

TileJob TileGeneration::jobFor(TileKey key, std::shared_ptr<TileProvider> provider) const {
    const auto known = bare.find(key);
    return {.request = {.key = key,
                        .devicePixelsPerMapPoint =
                            std::ldexp(scale * devicePixelsPerPixel, key.zoom - zoom),
                        .devicePixelsPerPixel = devicePixelsPerPixel,
                        .theme = theme},
            .language = language,
            .provider = std::move(provider),
            .overlay = overlay,
            .bare = known != bare.end() ? known->second : RasterTile()};
}

void TileGeneration::take(RasterTile tile, bool isOutdated) {
    const TileKey key = tile.key;
    tiles.insert_or_assign(key, std::move(tile));
    bare.erase(key);
    outdated.erase(key);
    if (isOutdated) {
        outdated.insert(key);
    }
}

void TileGeneration::takeOver(const TileGeneration& other) {
    const auto isAlike = [&](const RasterTile& tile) {
        return tile.isHandedOver && overlay && other.overlay &&
               overlay->paintsLike(*other.overlay,
                                   tile.pixels.bounds(tile.devicePixelsPerMapPoint),
                                   tile.devicePixelsPerMapPoint);
    };
    for (const auto* painted : {&other.tiles, &other.bare}) {
        for (const auto& [key, tile] : *painted) {
            if (tiles.contains(key) || other.outdated.contains(key)) {
                continue;
            }
            if (isAlike(tile)) {
                tiles.emplace(key, tile);
                bare.erase(key);
            } else if (!tile.basemap.isNull()) {
                RasterTile& taken = bare.insert_or_assign(key, tile).first->second;
                taken.image = {};
                taken.isHandedOver = false;
            }
        }
    }
}

bool TileGeneration::markOutdated(const ServiceTile& tile) {
    const bool isUsed =
        tile.content == TileContent::imagery ? showsImagery(theme) : showsVectorTiles(theme);
    bool isConcerned = false;
    if (isUsed) {
        std::erase_if(bare, [&](const auto& each) { return isRelated(each.first, tile.key); });
        for (const auto& [key, painted] : tiles) {
            if (isRelated(key, tile.key)) {
                outdated.insert(key);
                isConcerned = true;
            }
        }
    }
    return isConcerned;
}

void TileGeneration::dropBasemapsOutside(const std::vector<CoverTile>& cover) {
    for (auto& [key, tile] : tiles) {
        if (tile.isHandedOver && !std::ranges::count(cover, key, &CoverTile::key)) {
            tile.basemap = {};
        }
    }
}

void TileGeneration::trim(const Camera& camera, double margin) {
    const auto offsets = worldCopyOffsets(camera.visibleRect(margin));
    std::erase_if(tiles, [&](const auto& tile) {
        return std::ranges::none_of(offsets, [&](double offset) {
            return seesTile(camera, {tile.first, offset}, margin);
        });
    });
}

} // namespace vasker
