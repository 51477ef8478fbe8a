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

/// Paints `band`, whose first row is row `top` of the map.
void paintBand(QImage band, int top, const MapFrame& frame, const TileImages& images) {
    QPainter painter(&band);
    painter.translate(0, -top);
    painter.scale(frame.devicePixels, frame.devicePixels);
    painter.fillRect(QRectF({}, frame.size), frame.background);
    paintTiles(painter, frame.tiles, images);
    for (const MapLayer& layer : frame.layers) {
        paintLayer(painter, layer, frame.devicePixels);
    }
}

/// In bands side by side, one for each processor; it is not worth more than four.
void paintInBands(QImage& image, const MapFrame& frame, const TileImages& images) {
    const int count = std::clamp(QThread::idealThreadCount(), 1, std::min(4, image.height()));
    uchar* const pixels = image.bits(); // once: the image counts such calls, and guards nothing
    const auto paintOne = [&, pixels](int band) {
        const int top = image.height() * band / count;
        const int end = image.height() * (band + 1) / count;
        const qsizetype stride = image.bytesPerLine();
        paintBand(QImage(pixels + top * stride, image.width(), end - top, stride, image.format()),
                  top,
                  frame,
                  images);
    };
    QSemaphore painted;
    for (int band = 1; band < count; ++band) {
        const auto work = [&, band] {
            paintOne(band);
            painted.release();
        };
        if (!QThreadPool::globalInstance()->tryStart(work)) {
            work();
        }
    }
    paintOne(0);
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
    takeImages(frame.tiles, m_tiles);
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
