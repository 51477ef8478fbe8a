#include "app/saving/MapPicture.h"

#include "platform/ui/theme/TextStyles.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QTextLayout>

#include <cmath>
#include <utility>
#include <vector>

namespace vasker {

namespace {

constexpr double margin = 14;
constexpr double barStroke = 1.5;
constexpr double haloStroke = 4;
constexpr double northSize = 40;
constexpr int dotsPerMetre = 3780; // 96 dots per inch, which the fonts of labels count in

/// A text set in lines of one width.
struct Paragraph {
    QString text;
    TextStyle style;
    QColor color;

    /// Draws the lines from `top` on, or only measures them where there is no painter. Returns
    /// where they end.
    double draw(QPainter* painter, double width, double top) const {
        QTextLayout layout(text, style.font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, top});
            top += style.lineHeight;
        }
        layout.endLayout();
        if (painter != nullptr) {
            painter->setPen(color);
            layout.draw(painter, {margin, style.halfLeading});
        }
        return top;
    }
};

QImage imageFor(QSizeF size, double scale) {
    QImage image(static_cast<int>(std::lround(size.width() * scale)),
                 static_cast<int>(std::lround(size.height() * scale)),
                 QImage::Format_RGB32);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

void drawWithHalo(QPainter& painter,
                  const QPainterPath& strokes,
                  const QColor& color,
                  const QColor& halo) {
    for (const auto& [shade, width] : {std::pair(halo, haloStroke), std::pair(color, barStroke)}) {
        painter.strokePath(strokes, QPen(shade, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

} // namespace

QSizeF MapPicture::size() const {
    return {mapSize.width(), mapSize.height() + drawStrip(nullptr)};
}

/// Its height; drawn from the painter's origin on.
double MapPicture::drawStrip(QPainter* painter) const {
    const TextStyles styles = TextStyles::at(1);
    std::vector<Paragraph> paragraphs{{title, styles.headline, text}};
    for (const QString& note : notes) {
        if (!note.isEmpty()) {
            paragraphs.push_back({note, styles.caption, quietText});
        }
    }
    double below = margin;
    for (const Paragraph& paragraph : paragraphs) {
        below = paragraph.draw(painter, mapSize.width() - 2 * margin, below);
    }
    return std::ceil(below + margin);
}

QImage MapPicture::basemap() const {
    const double density = map->frame.devicePixels;
    QImage image = imageFor(mapSize, density);
    image.fill(background);
    QPainter painter(&image);
    painter.scale(density, density);
    map->paintBasemap(painter);
    return image;
}

void MapPicture::drawScaleBar(QPainter& painter) const {
    if (barLength <= 0) {
        return;
    }
    const QPointF foot(margin, mapSize.height() - margin);
    QPainterPath bar(foot - QPointF(0, 7));
    bar.lineTo(foot);
    bar.lineTo(foot + QPointF(barLength, 0));
    bar.lineTo(foot + QPointF(barLength, -7));
    bar.moveTo(foot + QPointF(barLength / 2, 0));
    bar.lineTo(foot + QPointF(barLength / 2, -4));
    drawWithHalo(painter, bar, mapText, mapHalo);
    const QFont font = TextStyles::at(1).mapNote.font;
    QPainterPath outline;
    outline.addText(foot + QPointF(-1, -12), font, QStringLiteral("0"));
    const double width = QFontMetricsF(font).horizontalAdvance(barText);
    const QPointF end = foot + QPointF(std::round(barLength - width / 2), -12);
    outline.addText(end, font, barText);
    painter.strokePath(outline, QPen(mapHalo, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setFont(font);
    painter.setPen(mapText);
    painter.drawText(foot + QPointF(-1, -12), QStringLiteral("0"));
    painter.drawText(end, barText);
}

void MapPicture::drawNorth(QPainter& painter) const {
    if (bearing == 0) {
        return;
    }
    const QPointF center(mapSize.width() - margin - northSize / 2, margin + northSize / 2);
    painter.setPen(QPen(mapText, 0.75));
    painter.setBrush(background);
    painter.drawEllipse(center, northSize / 2, northSize / 2);
    painter.save();
    painter.translate(center);
    painter.rotate(-bearing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(north);
    painter.drawPolygon(QPolygonF({{0, -16}, {5, 2}, {-5, 2}}));
    painter.setBrush(quietText);
    painter.drawPolygon(QPolygonF({{0, 16}, {5, 2}, {-5, 2}}));
    painter.restore();
}

void MapPicture::draw(QPainter& painter) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(QRectF({}, mapSize));
    if (painter.paintEngine()->type() == QPaintEngine::Raster) {
        map->paintBasemap(painter);
    } else {
        painter.drawImage(QRectF({}, mapSize), basemap());
    }
    map->paintRecords(painter);
    drawScaleBar(painter);
    drawNorth(painter);
    painter.restore();
    // Over what of the map reaches below its end: that of SVG does not clip.
    painter.save();
    painter.translate(0, mapSize.height());
    painter.fillRect(QRectF(0, 0, mapSize.width(), size().height() - mapSize.height()), background);
    drawStrip(&painter);
    painter.restore();
}

QImage MapPicture::composed() const {
    QImage picture = imageFor(size(), scale);
    picture.fill(background);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    draw(painter);
    return picture;
}

} // namespace vasker
