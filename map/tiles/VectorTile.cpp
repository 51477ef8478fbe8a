#include "map/tiles/VectorTile.h"

#include <algorithm>

namespace vasker {

const VectorLayer* VectorTile::layer(std::string_view name) const noexcept {
    const auto found = std::find_if(
        layers.begin(), layers.end(), [name](const auto& layer) { return layer.name == name; });
    return found == layers.end() ? nullptr : &*found;
}

std::size_t VectorTile::memoryBytes() const noexcept {
    std::size_t bytes = 0;
    for (const VectorLayer& layer : layers) {
        bytes += layer.features.capacity() * sizeof(VectorFeature);
        for (const VectorFeature& feature : layer.features) {
            bytes += feature.parts.capacity() * sizeof(std::vector<TilePoint>);
            for (const auto& part : feature.parts) {
                bytes += part.capacity() * sizeof(TilePoint);
            }
            for (const std::string* text :
                 {&feature.kind, &feature.name, &feature.nameEnglish, &feature.nameFrench}) {
                bytes += text->size();
            }
        }
    }
    return bytes;
}

} // namespace vasker
