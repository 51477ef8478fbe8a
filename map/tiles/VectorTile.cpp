#include "map/tiles/VectorTile.h"

#include <algorithm>

namespace vasker {

const VectorLayer* VectorTile::layer(std::string_view name) const noexcept {
    const auto found = std::find_if(
        layers.begin(), layers.end(), [name](const auto& layer) { return layer.name == name; });
    return found == layers.end() ? nullptr : &*found;
}

std::size_t VectorFeature::memoryBytes() const noexcept {
    std::size_t bytes = sizeof(VectorFeature) + parts.capacity() * sizeof(std::vector<TilePoint>);
    for (const auto& part : parts) {
        bytes += part.capacity() * sizeof(TilePoint);
    }
    for (const std::string* text : {&kind, &name, &nameEnglish, &nameFrench}) {
        bytes += text->size();
    }
    return bytes;
}

std::size_t VectorTile::memoryBytes() const noexcept {
    std::size_t bytes = 0;
    for (const VectorLayer& layer : layers) {
        bytes += (layer.features.capacity() - layer.features.size()) * sizeof(VectorFeature);
        for (const VectorFeature& feature : layer.features) {
            bytes += feature.memoryBytes();
        }
    }
    return bytes;
}

} // namespace vasker
