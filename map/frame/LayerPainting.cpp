#include "map/frame/LayerPainting.h"

#include "map/frame/FlatPieces.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>
#include <vector>

namespace vasker {

namespace {

/// In pixels of their images, tiles overlap so far where they are rotated or scaled: what lies
/// below would show between edges that are rounded apart.
constexpr double seamWidth = 1;

/// The lines of a strip: a line goes through the left corners between two tips.
struct ColoredLine {
    QPolygonF places;
    QColor color;
};

QRectF deviceArea(const QPainter& painter) {
    return {0, 0, double(painter.device()->width()), double(painter.device()->height())};
}

/// What `painter` can reach of the item, and `margin` around it.
QRectF reachOf(const QPainter& painter, double margin) {
    return painter.combinedTransform()
        .inverted()
        .mapRect(deviceArea(painter))
        .adjusted(-margin, -margin, margin, margin);
}

bool mayTouch(const QRectF& area, QPointF a, QPointF b) {
    return std::max(a.x(), b.x()) >= area.left() && std::min(a.x(), b.x()) <= area.right() &&
           std::max(a.y(), b.y()) >= area.top() && std::min(a.y(), b.y()) <= area.bottom();
}

/// The lines of a layer as far as they touch `area`: to stroke the rest takes as long as if it were
/// seen.
std::vector<ColoredLine> linesOf(const LineLayer& layer, const QRectF& area) {
    std::vector<ColoredLine> lines;
    if (layer.strip == nullptr) {
        return lines;
    }
    bool isWithin = false; // a line of the strip, whose place before is `last`
    bool isOpen = false;   // the last of `lines` ends there
    QPointF last;
    for (const LineVertex& vertex : *layer.strip) {
        if (vertex.corner != LineVertex::Corner::left) {
            isWithin = isWithin && vertex.corner == LineVertex::Corner::right;
            continue;
        }
        const QPointF place(double{vertex.x} + layer.offset.x, double{vertex.y} + layer.offset.y);
        const bool isSeen = isWithin && mayTouch(area, last, place);
        if (isSeen && !isOpen) {
            lines.push_back({{last}, QColor(vertex.red, vertex.green, vertex.blue)});
        }
        if (isSeen) {
            lines.back().places << place;
        }
        isOpen = isSeen;
        isWithin = true;
        last = place;
    }
    return lines;
}

/// Paints a part of `image`, its edges a little wider; `transform` leads to item pixels.
void paintPart(QPainter& painter,
               const QTransform& transform,
               const QImage& image,
               const QRectF& part) {
    painter.save();
    painter.setTransform(transform, true);
    const bool keepsPixels = painter.combinedTransform().type() <= QTransform::TxTranslate;
    const double edge = keepsPixels ? 0 : seamWidth / 2;
    const QRectF target = part.adjusted(-edge, -edge, edge, edge);
    painter.drawImage(target, image, target & QRectF(image.rect()));
    painter.restore();
}

void paintRasterTile(QPainter& painter, const QTransform& transform, const QImage& image) {
    const QTransform toDevice = painter.combinedTransform();
    std::vector<FlatPiece> pieces;
    // Where pieces overlap, what fades would be seen twice.
    if (!transform.isAffine() && painter.opacity() == 1) {
        pieces = flatPieces(transform * toDevice, image.rect(), deviceArea(painter));
    }
    if (pieces.empty()) {
        paintPart(painter, transform, image, image.rect());
        return;
    }
    const QTransform fromDevice = toDevice.inverted();
    for (const FlatPiece& piece : pieces) {
        paintPart(painter, piece.transform * fromDevice, image, piece.part);
    }
}

/// First every casing, then the cores: where a branch meets a trunk, no casing cuts the trunk. One
/// by one: the time that a raster takes for a path grows with the square of its crossings.
void paint(QPainter& painter, const LineLayer& layer, double /*devicePixels*/) {
    const LineStyle& style = layer.style;
    const double whole = style.width + 2 * style.casingWidth;
    const std::vector<ColoredLine> lines = linesOf(layer, reachOf(painter, whole));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const auto draw = [&](double width, const auto& colorOfLine) {
        for (const ColoredLine& line : lines) {
            painter.setPen(
                QPen(colorOfLine(line), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            if (std::ranges::count(line.places, line.places.front()) == line.places.size()) {
                painter.drawPoint(line.places.front()); // a path to nowhere is none in a PDF
            } else {
                painter.drawPolyline(line.places);
            }
        }
    };
    if (style.casing.alpha() > 0) {
        draw(whole, [&](const auto&) { return style.casing; });
    }
    draw(style.width, [&](const ColoredLine& line) { return style.color.value_or(line.color); });
    painter.restore();
}

void paint(QPainter& painter, const DotLayer& layer, double /*devicePixels*/) {
    const double whole = layer.radius + layer.casingWidth;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const Dot& dot : layer.dots) {
        const QPointF center(dot.x, dot.y);
        painter.setBrush(layer.casing);
        painter.drawEllipse(center, whole, whole);
        painter.setBrush(colorOf(dot.color));
        painter.drawEllipse(center, layer.radius, layer.radius);
    }
    painter.restore();
}

void paint(QPainter& painter, const SpriteLayer& layer, double devicePixels) {
    const auto snapped = [devicePixels](double position) {
        return std::round(position * devicePixels) / devicePixels;
    };
    for (const SpriteSheet& sheet : layer.sheets) {
        for (const auto& [corner, region] : sheet.sprites) {
            painter.drawImage(
                QRectF(QPointF(snapped(corner.x), snapped(corner.y)), region.size()),
                sheet.atlas,
                QRectF(region.topLeft() * devicePixels, region.size() * devicePixels));
        }
    }
}

} // namespace

void takeImages(TileLayer& layer, TileImages& images) {
    std::erase_if(images, [&layer](const auto& entry) {
        return !std::ranges::binary_search(layer.kept, entry.first);
    });
    for (TileImage& each : layer.newImages) {
        images.insert_or_assign(each.tile, std::move(each.image));
    }
    layer.newImages.clear();
}

void paintTiles(QPainter& painter, const TileLayer& layer, const TileImages& images) {
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const TileQuad& quad : layer.quads) {
        const auto image = images.find(quad.tile);
        const bool isSeen =
            std::ranges::all_of(quad.corners, [](auto& each) { return each.w > 0; });
        if (image == images.end() || !isSeen) {
            continue;
        }
        QPolygonF corners;
        for (const PerspectivePoint& each : quad.corners) {
            corners << QPointF(each.x / each.w, each.y / each.w);
        }
        const QRectF whole(image->second.rect());
        QPolygonF from(whole);
        from.removeLast(); // it is closed
        QTransform transform;
        if (QTransform::quadToQuad(from, corners, transform)) {
            painter.setOpacity(static_cast<double>(quad.opacity));
            paintRasterTile(painter, transform, image->second);
        }
    }
    painter.restore();
}

void paintLayer(QPainter& painter, const MapLayer& layer, double devicePixels) {
    std::visit([&](const auto& each) { paint(painter, each, devicePixels); }, layer);
}

} // namespace vasker
