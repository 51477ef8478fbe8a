#pragma once
// A tile of a service.

#include "map/geometry/TileKey.h"

#include <QHashFunctions>

#include <cstdint>

namespace vasker {

enum class TileContent : std::uint8_t { vector, imagery };

struct ServiceTile {
    TileContent content;
    TileKey key;
    friend auto operator<=>(const ServiceTile&, const ServiceTile&) = default;
};

[[nodiscard]] inline size_t qHash(const TileKey& key, size_t seed = 0) noexcept {
    return qHashMulti(seed, key.zoom, key.column, key.row);
}
[[nodiscard]] inline size_t qHash(const ServiceTile& tile, size_t seed = 0) noexcept {
    return qHashMulti(seed, static_cast<int>(tile.content), tile.key);
}

} // namespace vasker
