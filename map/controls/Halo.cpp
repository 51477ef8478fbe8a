#include "map/controls/Halo.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <cmath>

namespace vasker {

namespace {

constexpr double haloRadius = 1.5;

} // namespace

Halo::Halo(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &Halo::changed, this, [this] { update(); });
}

double Halo::reach() noexcept {
    return std::ceil(haloRadius) + 1;
}

void Halo::paint(QPainter* painter) {
    QPainterPath outline;
    outline.addText({reach(), m_baseline}, m_font, m_text);
    painter->strokePath(outline,
                        QPen(m_color, 2 * haloRadius, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace vasker
