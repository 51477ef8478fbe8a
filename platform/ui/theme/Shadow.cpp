#include "platform/ui/theme/Shadow.h"

#include "platform/ui/theme/ThemeColors.h"

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

namespace vasker {

namespace {

Elevation elevation(int level, bool dark) {
    const auto place = static_cast<std::size_t>(std::clamp(level, 1, 3) - 1);
    return themeColors(dark ? ColorScheme::dark : ColorScheme::light).elevations.at(place);
}

// Room around the surface that holds the whole shadow.
double margin(const Elevation& raised) {
    return std::ceil(raised.blur * 1.5 + raised.offset);
}

// How far a corner reaches into the surface: as far as the shadow is curved, unless the surface is
// too small for two such corners, as a disc is.
double corner(const Elevation& raised, double radius, QSizeF surface) {
    const double room = std::floor(std::min(surface.width(), surface.height()) / 2);
    return std::max(std::ceil(radius), std::min(std::ceil(radius + raised.blur * 1.5), room));
}

// One pass of a moving mean over a row or column of `count` bytes that lie `stride` apart. Three
// passes come close to a Gaussian.
void blurLine(uchar* bytes, int count, qsizetype stride, int reach) {
    std::vector<int> sums(static_cast<std::size_t>(count) + 1, 0);
    for (int i = 0; i < count; ++i) {
        sums[static_cast<std::size_t>(i) + 1] =
            sums[static_cast<std::size_t>(i)] + bytes[i * stride];
    }
    for (int i = 0; i < count; ++i) {
        const int first = std::max(i - reach, 0);
        const int last = std::min(i + reach + 1, count);
        const int sum =
            sums[static_cast<std::size_t>(last)] - sums[static_cast<std::size_t>(first)];
        bytes[i * stride] = static_cast<uchar>(sum / (2 * reach + 1));
    }
}

void blur(QImage& alpha, double deviation) {
    const int reach = std::max(1, static_cast<int>(std::lround(deviation)) - 1);
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < alpha.height(); ++y) {
            blurLine(alpha.scanLine(y), alpha.width(), 1, reach);
        }
        for (int x = 0; x < alpha.width(); ++x) {
            blurLine(alpha.bits() + x, alpha.height(), alpha.bytesPerLine(), reach);
        }
    }
}

QImage bake(const Elevation& raised, double radius, double reach, double pixelRatio) {
    const double edge = margin(raised);
    const double side = 2 * (edge + reach) + 1;
    const int pixels = static_cast<int>(std::ceil(side * pixelRatio));
    const QRectF surface(edge, edge, side - 2 * edge, side - 2 * edge);

    QImage alpha(pixels, pixels, QImage::Format_Alpha8);
    alpha.fill(0);
    QPainter shape(&alpha);
    shape.setRenderHint(QPainter::Antialiasing);
    shape.scale(pixelRatio, pixelRatio);
    shape.setPen(Qt::NoPen);
    shape.setBrush(Qt::black);
    shape.drawRoundedRect(surface.translated(0, raised.offset), radius, radius);
    shape.end();
    blur(alpha, raised.blur / 2 * pixelRatio);

    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(raised.shadow);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, alpha);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelRatio, pixelRatio);
    painter.setPen(QPen(raised.hairline, 1));
    painter.drawRoundedRect(surface.adjusted(-0.5, -0.5, 0.5, 0.5), radius + 0.5, radius + 0.5);
    return picture;
}

QImage baked(int level, bool dark, double radius, double reach, double pixelRatio) {
    static QHash<QString, QImage> cache;
    const QString key = QStringLiteral("%1 %2 %3 %4 %5");
    QImage& picture =
        cache[key.arg(level).arg(dark ? 1 : 0).arg(radius).arg(reach).arg(pixelRatio)];
    if (picture.isNull()) {
        picture = bake(elevation(level, dark), radius, reach, pixelRatio);
    }
    return picture;
}

/// Three by three patches of one picture: the corners keep their size. The stock node for that is
/// not right where a painter draws for a screen of more than one device pixel a logical pixel.
class ShadowNode : public QSGNode {
  public:
    explicit ShadowNode(const QQuickWindow& window) {
        for (auto& patch : m_patches) {
            patch.reset(window.createImageNode());
            patch->setFlag(OwnedByParent, false);
            patch->setFiltering(QSGTexture::Linear);
        }
    }

    void setPicture(QSGTexture* picture) {
        for (auto& patch : m_patches) {
            patch->setTexture(picture);
        }
        m_picture.reset(picture);
    }

    /// `corner` is the side of a corner.
    void setGeometry(const QRectF& bounds, double corner, double pixelRatio) {
        const QSizeF pixels = m_picture->textureSize();
        const double cut = corner * pixelRatio;
        const std::array x{
            bounds.left(), bounds.left() + corner, bounds.right() - corner, bounds.right()};
        const std::array y{
            bounds.top(), bounds.top() + corner, bounds.bottom() - corner, bounds.bottom()};
        const std::array u{0.0, cut, pixels.width() - cut, pixels.width()};
        const std::array v{0.0, cut, pixels.height() - cut, pixels.height()};
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                QSGImageNode& patch = *m_patches[3 * row + column];
                const QRectF place({x[column], y[row]}, QPointF(x[column + 1], y[row + 1]));
                patch.setRect(place);
                patch.setSourceRect({{u[column], v[row]}, QPointF(u[column + 1], v[row + 1])});
                if (place.isEmpty() && patch.parent() != nullptr) {
                    removeChildNode(&patch);
                } else if (!place.isEmpty() && patch.parent() == nullptr) {
                    appendChildNode(&patch);
                }
            }
        }
    }

  private:
    std::unique_ptr<QSGTexture> m_picture;
    std::array<std::unique_ptr<QSGImageNode>, 9> m_patches;
};

} // namespace

Shadow::Shadow(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &Shadow::looksChanged, this, [this] {
        m_pictureIsStale = true;
        update();
    });
}

void Shadow::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        m_pictureIsStale = true;
        update();
    }
    QQuickItem::itemChange(change, value);
}

void Shadow::geometryChange(const QRectF& now, const QRectF& before) {
    update();
    QQuickItem::geometryChange(now, before);
}

QSGNode* Shadow::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    auto* node = static_cast<ShadowNode*>(old);
    const double pixelRatio = window()->effectiveDevicePixelRatio();
    const Elevation raised = elevation(m_level, m_dark);
    if (node == nullptr) {
        node = new ShadowNode(*window());
        m_pictureIsStale = true;
    }
    const double reach = corner(raised, m_radius, size());
    if (m_pictureIsStale || reach != m_reach) {
        m_pictureIsStale = false;
        m_reach = reach;
        node->setPicture(
            window()->createTextureFromImage(baked(m_level, m_dark, m_radius, reach, pixelRatio)));
    }
    const double edge = margin(raised);
    node->setGeometry(boundingRect().adjusted(-edge, -edge, edge, edge), edge + reach, pixelRatio);
    return node;
}

} // namespace vasker
