#include "map/frame/MapFrame.h"

#include <algorithm>
#include <utility>

namespace vasker {

void MapFrame::takeImages(MapFrame& before) {
    for (TileImage& image : std::exchange(before.tiles.newImages, {})) {
        if (std::ranges::binary_search(tiles.kept, image.tile)) {
            tiles.newImages.push_back(std::move(image));
        }
    }
}

} // namespace vasker
