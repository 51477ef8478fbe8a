#pragma once
// The record colours for views.

#include "platform/ui/Palette.h"

#include <QObject>
#include <QtQmlIntegration>

namespace vasker {

class RecordPalette : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    /// The value of the PaletteColor numbered `color`.
    Q_INVOKABLE [[nodiscard]] QColor value(int color, bool dark) const {
        return colorValue(static_cast<PaletteColor>(color),
                          dark ? ColorScheme::dark : ColorScheme::light);
    }
};

} // namespace vasker
