#include "map/pins/PinAtlas.h"

#include "map/pins/PinShape.h"
#include "map/style/MapTheme.h"
#include "platform/ui/theme/IconPainter.h"
#include "presentation/Symbols.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>

namespace vasker {

namespace {

constexpr double symbolSize = 14;
constexpr double symbolStroke = 1.15;
constexpr double ringWidth = 1.5;
constexpr double outlineWidth = 0.8;
constexpr double shadowWidth = 16;
constexpr double shadowHeight = 7;

double casingWidth(PinState state) {
    return state == PinState::selected ? 2 : 1.5;
}

double enlargement(PinState state) {
    switch (state) {
    case PinState::plain:
        return 1;
    case PinState::hovered:
        return hoveredPinScale;
    case PinState::selected:
        break;
    }
    return selectedPinScale;
}

/// Room around the pin's box: its casing, its ring, half a shadow, a pixel for smooth edges.
double margin(PinState state) {
    const double outline =
        casingWidth(state) + (state == PinState::selected ? ringWidth : 0) + outlineWidth;
    return std::ceil(std::max(outline, shadowHeight / 2 * enlargement(state)) + 1);
}

QSizeF pinCell(PinState state) {
    return {pinWidth * enlargement(state) + 2 * margin(state),
            std::ceil(pinHeight * enlargement(state)) + 2 * margin(state)};
}

/// Where the pins of a state begin in the atlas, from its top.
double rowOf(PinState state) {
    double y = 0;
    for (const PinState above : {PinState::plain, PinState::hovered}) {
        y += above < state ? pinCell(above).height() : 0;
    }
    return y;
}

QPainterPath pinOutline() {
    QPainterPath path(QPointF(11.3, 29.6));
    path.quadTo(12, 31.3, 12.7, 29.6);
    path.cubicTo(13.3, 26.9, 15, 23.8, 17.07, 22.88);
    // The head from its lower right over the top to its lower left.
    const QRectF head(0, 0, 2 * pinHeadRadius, 2 * pinHeadRadius);
    const double start = -std::atan2(22.88 - 12, 17.07 - 12) * 180 / M_PI;
    path.arcTo(head, start, 180 - 2 * start);
    path.cubicTo(9, 23.8, 10.7, 26.9, 11.3, 29.6);
    path.closeSubpath();
    return path;
}

void paintShadow(QPainter& painter) {
    painter.save();
    painter.translate(pinTipX, pinTipY);
    painter.scale(shadowWidth / 2, shadowHeight / 2);
    painter.setPen(Qt::NoPen);
    if (painter.paintEngine()->type() == QPaintEngine::Raster) {
        QRadialGradient gradient(QPointF(0, 0), 1);
        gradient.setColorAt(0, QColor(0, 0, 0, 107));
        gradient.setColorAt(1, QColor(0, 0, 0, 0));
        painter.setBrush(gradient);
        painter.drawEllipse(QPointF(0, 0), 1, 1);
    } else { // readers of pages disagree on gradients that fade out
        painter.setBrush(QColor(0, 0, 0, 22));
        for (const double radius : {0.8, 0.6, 0.4, 0.2}) {
            painter.drawEllipse(QPointF(0, 0), radius, radius);
        }
    }
    painter.restore();
}

void strokeOutside(QPainter& painter, const QPainterPath& path, const QColor& color, double width) {
    painter.strokePath(path, QPen(color, 2 * width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace

void paintPin(QPainter& painter, std::string_view kind, BasemapTheme basemap, PinState state) {
    const MapTheme& theme = mapTheme(basemap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = enlargement(state);
    const double casing = casingWidth(state) / scale;
    painter.translate(margin(state), margin(state));
    painter.scale(scale, scale);
    paintShadow(painter);
    const QPainterPath path = pinOutline();
    const double ring = state == PinState::selected ? ringWidth / scale : 0;
    strokeOutside(painter, path, theme.markerOutline, casing + ring + outlineWidth / scale);
    if (ring > 0) {
        strokeOutside(painter, path, theme.record(PaletteColor::blue), casing + ring);
    }
    strokeOutside(painter, path, theme.markerCasing, casing);
    painter.fillPath(path, theme.record(color(kind)));
    const std::string_view name = symbol(kind);
    const QRectF area(
        pinHeadRadius - symbolSize / 2, pinHeadRadius - symbolSize / 2, symbolSize, symbolSize);
    paintIcon(painter,
              QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())),
              area,
              theme.pinSymbol,
              symbolStroke);
}

PinAtlas::PinAtlas(std::span<const std::string> kinds, BasemapTheme theme, double devicePixels) {
    std::map<int, std::string_view> kindOfColumn;
    for (const std::string& kind : kinds) {
        const auto [place, isNew] =
            m_columns.try_emplace(std::string(symbol(kind)), static_cast<int>(m_columns.size()));
        if (isNew) {
            kindOfColumn.emplace(place->second, kind);
        }
    }
    const QSizeF size(pinCell(PinState::selected).width() * static_cast<double>(m_columns.size()),
                      rowOf(PinState::selected) + pinCell(PinState::selected).height());
    m_image = QImage((size * devicePixels).toSize().expandedTo({1, 1}),
                     QImage::Format_ARGB32_Premultiplied);
    m_image.setDevicePixelRatio(devicePixels);
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [column, kind] : kindOfColumn) {
        for (const PinState state : {PinState::plain, PinState::hovered, PinState::selected}) {
            painter.save();
            painter.translate(region(kind, state).topLeft());
            paintPin(painter, kind, theme, state);
            painter.restore();
        }
    }
}

QRectF PinAtlas::region(std::string_view kind, PinState state) const {
    const auto column = m_columns.find(symbol(kind));
    if (column == m_columns.end()) {
        return {};
    }
    const double x = column->second * pinCell(PinState::selected).width();
    return {QPointF(x, rowOf(state)), pinCell(state)};
}

ScreenPoint PinAtlas::tip(PinState state) noexcept {
    return {margin(state) + pinTipX * enlargement(state),
            margin(state) + pinTipY * enlargement(state)};
}

} // namespace vasker
