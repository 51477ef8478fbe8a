#include "map/basemap/ImageryMargin.h"

#include <QPainter>

#include <utility>

namespace vasker {

void addMargin(ImageryTile& tile, TileKey shown, const ImageryLookup& imageOf) {
    const int width = tile.image.width();
    const int height = tile.image.height();
    const TileKey key = tile.key;
    const int levels = shown.zoom - key.zoom;
    const int last = (1 << key.zoom) - 1;

    QImage image(width + 2, height + 2, tile.image.format());
    QPainter painter(&image);
    painter.drawImage(image.rect(), tile.image);
    for (const int down : {-1, 0, 1}) {
        for (const int right : {-1, 0, 1}) {
            const bool isTouched = ((shown.column + right) >> levels) == key.column + right &&
                                   ((shown.row + down) >> levels) == key.row + down;
            const int row = key.row + down;
            if (!isTouched || (right == 0 && down == 0) || row < 0 || row > last) {
                continue;
            }
            const QImage beside = imageOf({key.zoom, (key.column + right) & last, row});
            if (beside.size() == tile.image.size()) {
                painter.drawImage(1 + right * width, 1 + down * height, beside);
            }
        }
    }
    painter.drawImage(1, 1, tile.image);
    painter.end();
    tile.image = std::move(image);
    tile.margin = 1;
}

} // namespace vasker
