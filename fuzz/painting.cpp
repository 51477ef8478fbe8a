// Any bytes that are a vector tile are painted within the budget, or refused, and their places
// labelled. Input: theme, side, zooms, then the tile.

#include "fuzz/support/Require.h"
#include "map/labels/PlaceLabels.h"
#include "map/style/TilePainter.h"
#include "map/tiles/TileInflation.h"
#include "map/tiles/VectorTileDecoding.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace vasker;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static constexpr std::array<BasemapTheme, 4> themes{
        BasemapTheme::light, BasemapTheme::dark, BasemapTheme::satellite, BasemapTheme::hybrid};
    constexpr std::size_t parameters = 3;
    if (size < parameters) {
        return 0;
    }
    const auto inflated =
        inflatedTile({reinterpret_cast<const char*>(data) + parameters, size - parameters});
    auto tile = inflated ? decodeVectorTile(*inflated) : std::nullopt;
    if (!tile) {
        return 0;
    }
    const TileKey key{data[2] % 16, 0, 0};
    // In device pixels; a tile has 512 on a common screen.
    const double side = 16 + 2 * data[1];
    const TileRequest request{.key = key,
                              .devicePixelsPerMapPoint = side / key.side(),
                              .devicePixelsPerPixel = side > 256 ? 2.0 : 1.0,
                              .theme = themes.at(data[0] % themes.size())};
    const int levels = std::min(data[2] / 16 % 4, key.zoom);
    const TileData shown{.vector = std::make_shared<const VectorTile>(*std::move(tile)),
                         .vectorKey = key.ancestor(levels),
                         .imagery = {}};
    const QImage image = paintTile(shown, request);
    require(image.isNull() ||
            image.size() == QSize(request.pixels().width, request.pixels().height));
    const MapRect bounds = key.bounds();
    for (const PlaceLabel& label : placeLabels(shown, request, MapLanguage::french)) {
        require(!label.text.isEmpty() && bounds.contains(label.point));
    }
    return 0;
}
