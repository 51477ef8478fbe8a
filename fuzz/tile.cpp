// Any bytes are inflated and decoded as a vector tile, or refused; what is accepted keeps what the
// header promises of its geometry and its memory.

#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using vasker::VectorFeature;

// Of the header: some fifty times the bytes. Allocation has its own cost, which is not counted
// here.
constexpr std::size_t memoryFactor = 50;

void require(bool promise) {
    if (!promise) {
        std::abort();
    }
}

void check(const VectorFeature& feature) {
    require(!feature.parts.empty());
    for (const auto& part : feature.parts) {
        const bool isRing = feature.geometry == VectorFeature::Geometry::polygon;
        const bool isLine = feature.geometry == VectorFeature::Geometry::lines;
        require(part.size() >= (isRing ? 4U : isLine ? 2U : 1U));
        require(!isRing || part.front() == part.back());
        for (const vasker::TilePoint point : part) {
            require(std::abs(point.x) <= 64 && std::abs(point.y) <= 64);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto inflated =
        vasker::inflatedTile(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!inflated) {
        return 0;
    }
    require(inflated->size() <= vasker::maximumTileBytes);
    const auto tile = vasker::decodeVectorTile(*inflated);
    if (!tile) {
        return 0;
    }
    for (const vasker::VectorLayer& layer : tile->layers) {
        require(!layer.name.empty() && tile->layer(layer.name) != nullptr);
        for (const VectorFeature& feature : layer.features) {
            check(feature);
        }
    }
    require(tile->memoryBytes() <= memoryFactor * inflated->size());
    return 0;
}
