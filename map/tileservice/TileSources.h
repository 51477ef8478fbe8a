#pragma once
// The tile services of the bundle information.

#include "map/tileservice/ServiceTile.h"
#include "map/tileservice/TileSource.h"

#include <QJsonObject>

#include <cstdint>
#include <vector>

namespace vasker {

/// Plain HTTP to 127.0.0.1, for tests.
enum class PlainLoopback : std::uint8_t { refused, allowed };

struct TileSources {
    std::vector<TileSource> vector;
    std::vector<TileSource> imagery;

    /// What the bundle information says under "VaskerTileServices"; an entry that is not valid or
    /// no HTTPS address is left out.
    [[nodiscard]] static TileSources fromInformation(const QJsonObject& services);
    /// Those of them that are valid and HTTPS.
    [[nodiscard]] TileSources usable(PlainLoopback plainLoopback) const;

    [[nodiscard]] const std::vector<TileSource>& of(TileContent content) const noexcept {
        return content == TileContent::vector ? vector : imagery;
    }
    /// The first source that covers the zoom; null where none does.
    [[nodiscard]] const TileSource* covering(TileContent content, int zoom) const noexcept;
    /// The deepest zoom that any source of `content` has, -1: none.
    [[nodiscard]] int lastZoom(TileContent content) const noexcept;
};

} // namespace vasker
