#include "map/frame/MapFrame.h"

#include <algorithm>
#include <utility>

namespace vasker {

namespace {

TileLayer* tilesOf(MapFrame& frame) {
    for (MapLayer& layer : frame.layers) {
        if (auto* const tiles = std::get_if<TileLayer>(&layer)) {
            return tiles;
        }
    }
    return nullptr;
}

} // namespace

void MapFrame::takeImages(MapFrame& before) {
    TileLayer* const from = tilesOf(before);
    TileLayer* const to = tilesOf(*this);
    if (from == nullptr || to == nullptr) {
        return;
    }
    for (TileImage& image : from->newImages) {
        if (std::ranges::binary_search(to->kept, image.tile)) {
            to->newImages.push_back(std::move(image));
        }
    }
    from->newImages.clear();
}

} // namespace vasker
