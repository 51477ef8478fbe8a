#include "map/scene/PaintedMapNode.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <utility>

namespace vasker {

namespace {

/// Images that `layer` hands over join `tiles`; those that it needs no longer leave.
void takeOver(TileLayer& layer, TileImages& tiles) {
    std::erase_if(tiles, [&layer](const auto& entry) {
        return !std::ranges::binary_search(layer.kept, entry.first);
    });
    for (TileImage& each : layer.newImages) {
        tiles.insert_or_assign(each.tile, std::move(each.image));
    }
    layer.newImages.clear();
}

void paint(QPainter& painter, const MapFrame& frame, const TileImages& images) {
    for (const MapLayer& layer : frame.layers) {
        if (const auto* const background = std::get_if<BackgroundLayer>(&layer)) {
            painter.fillRect(QRectF({}, frame.size), background->color);
        } else if (const auto* const tiles = std::get_if<TileLayer>(&layer)) {
            paintTiles(painter, *tiles, images);
        } else if (const auto* const lines = std::get_if<LineLayer>(&layer)) {
            paintLines(painter, *lines);
        } else if (const auto* const dots = std::get_if<DotLayer>(&layer)) {
            paintDots(painter, *dots);
        } else if (const auto* const sprites = std::get_if<SpriteLayer>(&layer)) {
            paintSprites(painter, *sprites, frame.devicePixels);
        }
    }
}

/// Paints the rows of `image` from `from` to before `to`, of which nobody else touches any.
void paintBand(QImage& image, int from, int to, const MapFrame& frame, const TileImages& images) {
    uchar* const first = image.scanLine(from);
    QImage band(first, image.width(), to - from, image.bytesPerLine(), image.format());
    QPainter painter(&band);
    painter.translate(0, -from);
    painter.scale(frame.devicePixels, frame.devicePixels);
    paint(painter, frame, images);
}

/// In bands side by side, one for each processor; it is not worth more than four.
void paintInBands(QImage& image, const MapFrame& frame, const TileImages& images) {
    const int count = std::clamp(QThread::idealThreadCount(), 1, 4);
    const auto edge = [&image, count](int band) { return image.height() * band / count; };
    QSemaphore painted;
    image.bits(); // nothing is shared from here on
    for (int band = 1; band < count; ++band) {
        const auto work = [&, band] {
            paintBand(image, edge(band), edge(band + 1), frame, images);
            painted.release();
        };
        if (!QThreadPool::globalInstance()->tryStart(work)) {
            work();
        }
    }
    paintBand(image, 0, edge(1), frame, images);
    painted.acquire(count - 1);
}

} // namespace

PaintedMapNode::PaintedMapNode(const QQuickWindow& window) : m_shown(window.createImageNode()) {
    m_shown->setFlag(OwnedByParent, false);
    m_shown->setOwnsTexture(true);
    m_shown->setFiltering(QSGTexture::Nearest);
}

void PaintedMapNode::update(MapFrame& frame, QQuickWindow& window) {
    const QSize size = (frame.size * frame.devicePixels).toSize();
    if (size.isEmpty()) {
        return;
    }
    QImage& image = m_images[0];
    if (image.size() != size) {
        image = QImage(size, QImage::Format_RGB32);
    }
    for (MapLayer& layer : frame.layers) {
        if (auto* const tiles = std::get_if<TileLayer>(&layer)) {
            takeOver(*tiles, m_tiles);
        }
    }
    paintInBands(image, frame, m_tiles);
    m_shown->setTexture(window.createTextureFromImage(image, QQuickWindow::TextureIsOpaque));
    m_shown->setRect(QRectF({}, QSizeF(size) / frame.devicePixels));
    m_shown->setSourceRect(QRectF({}, QSizeF(size)));
    std::swap(m_images[0], m_images[1]);
    if (m_shown->parent() == nullptr) {
        appendChildNode(m_shown.get());
    }
}

} // namespace vasker
