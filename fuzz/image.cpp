// Any bytes are decoded as an imagery tile, or refused; what is decoded is painted.

#include "fuzz/support/Require.h"
#include "map/style/ImageryDecoding.h"
#include "map/style/TilePainter.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>

using namespace vasker;

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    static const QCoreApplication application(*count, *arguments); // finds the decoders
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QImage image = decodedImagery(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (image.isNull()) {
        return 0;
    }
    require(image.format() == QImage::Format_RGB32);
    require(image.width() <= maximumImagerySide && image.height() <= maximumImagerySide);
    const TileKey key{3, 2, 1};
    const TileRequest request{
        .key = key, .devicePixelsPerMapPoint = 64 / key.side(), .theme = BasemapTheme::satellite};
    TileData shown;
    shown.imagery = {{key.ancestor(1), image}};
    const QImage tile = paintTile(shown, request);
    require(!tile.isNull());
    return 0;
}
