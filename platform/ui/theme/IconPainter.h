#pragma once
// The application's icons, drawn in one colour at any size. Any thread.

#include <QStringView>

class QColor;
class QPainter;
class QRectF;

namespace vasker {

/// How much the strokes of an icon are scaled at `pixels` logical pixels a side, so that small cuts
/// stay firm and large ones light.
[[nodiscard]] double strokeScaleFor(double pixels) noexcept;

/// Draws the icon `name` into `target`, its strokes scaled by `strokeScale`. A name without an icon
/// is drawn as "mappin", so that nothing is ever without a mark.
void paintIcon(QPainter& painter,
               QStringView name,
               const QRectF& target,
               const QColor& color,
               double strokeScale);

} // namespace vasker
