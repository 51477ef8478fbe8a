#include "platform/ui/theme/ProgressRing.h"

#include <QPainter>

namespace vasker {

namespace {

// QPainter counts sixteenths of a degree, anticlockwise from three o'clock.
constexpr int noon = 90 * 16;
constexpr int clockwiseQuarter = -90 * 16;

constexpr double stroke = 3;

} // namespace

ProgressRing::ProgressRing(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &ProgressRing::looksChanged, this, [this] { update(); });
}

void ProgressRing::paint(QPainter* painter) {
    const double inset = stroke / 2;
    const QRectF ring = QRectF(0, 0, width(), height()).adjusted(inset, inset, -inset, -inset);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_track, stroke));
    painter->drawEllipse(ring);
    painter->setPen(QPen(m_quarter, stroke, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(ring, noon, clockwiseQuarter);
}

} // namespace vasker
