#include "platform/ui/theme/Icon.h"

#include "platform/ui/theme/IconPainter.h"

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <memory>

namespace vasker {

namespace {

QImage picture(const QString& name, const QColor& color, double size, double pixelRatio) {
    static QHash<QString, QImage> cache;
    const QString key = QStringLiteral("%1 %2 %3 %4")
                            .arg(name, color.name(QColor::HexArgb))
                            .arg(size)
                            .arg(pixelRatio);
    QImage& cached = cache[key];
    if (cached.isNull()) {
        const int pixels = static_cast<int>(std::ceil(size * pixelRatio));
        cached = QImage(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        cached.fill(Qt::transparent);
        QPainter painter(&cached);
        paintIcon(painter, name, QRectF(0, 0, pixels, pixels), color, strokeScaleFor(size));
    }
    return cached;
}

// An icon that starts between two device pixels would be blurred by the texture's filter.
double snapped(double position, double pixelRatio) {
    return std::round(position * pixelRatio) / pixelRatio;
}

} // namespace

Icon::Icon(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setImplicitSize(m_size, m_size);
    connect(this, &Icon::looksChanged, this, [this] {
        setImplicitSize(m_size, m_size);
        redraw();
    });
}

void Icon::redraw() {
    m_pictureIsStale = true;
    update();
}

void Icon::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        redraw();
    }
    QQuickItem::itemChange(change, value);
}

void Icon::geometryChange(const QRectF& now, const QRectF& before) {
    update();
    QQuickItem::geometryChange(now, before);
}

QSGNode* Icon::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    auto* node = static_cast<QSGImageNode*>(old);
    if (m_name.isEmpty()) {
        delete node;
        return nullptr;
    }
    const double pixelRatio = window()->effectiveDevicePixelRatio();
    if (m_pictureIsStale || node == nullptr) {
        m_pictureIsStale = false;
        const QImage image = picture(m_name, m_color, m_size, pixelRatio);
        if (node == nullptr) {
            node = window()->createImageNode();
            node->setOwnsTexture(true);
            node->setFiltering(QSGTexture::Linear);
        }
        node->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas));
    }
    const double side = std::ceil(m_size * pixelRatio) / pixelRatio;
    const QPointF origin(snapped((width() - side) / 2, pixelRatio),
                         snapped((height() - side) / 2, pixelRatio));
    node->setRect(QRectF(origin, QSizeF(side, side)));
    return node;
}

} // namespace vasker
