#pragma once
// The style of labels: typeface, colours, lines.

#include "map/labels/Label.h"

#include <QFont>
#include <QPointF>
#include <QSizeF>
#include <QString>

class QPainter;
class QPaintDevice;

namespace vasker {

/// Sizes count in pixels of a device of 96 dots per inch.
[[nodiscard]] QFont labelFont(LabelStyle style, double textScale);

struct SetText {
    QString lines; ///< one or two, a line separator between
    QSizeF size;   ///< of the block, in whole pixels
};

/// `text` in at most two lines of about equal length, the last elided where it does not fit.
[[nodiscard]] SetText
setText(const QString& text, LabelStyle style, double textScale, const QPaintDevice* device);

/// Lines aligned in a block of that size whose corner is the painter's origin, with halo.
void paintLabel(QPainter& painter, const SetText& text, const Label& label, double textScale);

/// The ring that marks the point of a place, and how far from the point it reaches with its halo.
void paintPlaceMark(QPainter& painter, QPointF centre, BasemapTheme theme);
inline constexpr double placeMarkReach = 4.25;

} // namespace vasker
