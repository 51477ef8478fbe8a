#pragma once
// The colours of the interface and of the records: one table, with an entry for each theme.

#include <QColor>
#include <QtQmlIntegration>
#include <qqml.h>

#include <array>

namespace vasker {

/// Whether the desktop shows dark text on a light background or the reverse.
enum class ColorScheme { light, dark };

/// The colours that records are drawn in.
enum class PaletteColor {
    blue,
    indigo,
    teal,
    purple,
    brown,
    orange,
    red,
    green,
    mint,
    yellow,
    gray
};

inline constexpr int paletteSize = 11;

/// By PaletteColor.
using RecordPalette = std::array<QColor, paletteSize>;

/// What raises a surface above others: the shadow below it and the hairline around it.
struct Elevation {
    double offset = 0; ///< how far down the shadow falls, in logical pixels
    double blur = 0;   ///< its softness: twice the standard deviation, as style sheets count it
    QColor shadow;
    QColor hairline;
};

struct ThemeColors {
    Q_GADGET
    QML_VALUE_TYPE(themeColors)
    Q_PROPERTY(QColor window MEMBER window CONSTANT)
    Q_PROPERTY(QColor surface MEMBER surface CONSTANT)
    Q_PROPERTY(QColor sheet MEMBER sheet CONSTANT)
    Q_PROPERTY(QColor card MEMBER card CONSTANT)
    Q_PROPERTY(QColor control MEMBER control CONSTANT)
    Q_PROPERTY(QColor raised MEMBER raised CONSTANT)
    Q_PROPERTY(QColor line MEMBER line CONSTANT)
    Q_PROPERTY(QColor controlLine MEMBER controlLine CONSTANT)
    Q_PROPERTY(QColor text MEMBER text CONSTANT)
    Q_PROPERTY(QColor text2 MEMBER text2 CONSTANT)
    Q_PROPERTY(QColor text3 MEMBER text3 CONSTANT)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QColor onAccent MEMBER onAccent CONSTANT)
    Q_PROPERTY(QColor selected MEMBER selected CONSTANT)
    Q_PROPERTY(QColor hover MEMBER hover CONSTANT)
    Q_PROPERTY(QColor pressed MEMBER pressed CONSTANT)
    Q_PROPERTY(QColor scrim MEMBER scrim CONSTANT)
    Q_PROPERTY(QColor sideScrim MEMBER sideScrim CONSTANT)
    Q_PROPERTY(QColor thumb MEMBER thumb CONSTANT)
    Q_PROPERTY(QColor strip MEMBER strip CONSTANT)
    Q_PROPERTY(QColor north READ north CONSTANT)

  public:
    QColor window;
    QColor surface; ///< of lists
    QColor sheet;
    QColor card; ///< on a sheet
    QColor control;
    QColor raised; ///< menus, cards and controls over the map
    QColor line;
    QColor controlLine;
    QColor text;
    QColor text2; ///< secondary text
    QColor text3; ///< large icons, never text
    QColor accent;
    QColor onAccent;
    QColor selected;
    QColor hover;     ///< over whatever is below
    QColor pressed;   ///< over whatever is below
    QColor scrim;     ///< behind a sheet
    QColor sideScrim; ///< behind a sheet that leaves the map in use to the eye
    QColor thumb;
    QColor strip; ///< the caption over the map
    /// Deep on a light background, bright on a dark one and on imagery: at least
    /// 3:1 against everything that they are drawn on.
    RecordPalette records;
    /// The same for high contrast: at least 4.5:1.
    RecordPalette highContrastRecords;
    /// Of controls on the map, of menus and cards, of sheets.
    std::array<Elevation, 3> elevations;

    /// The compass needle's end.
    [[nodiscard]] QColor north() const { return record(PaletteColor::red); }
    [[nodiscard]] QColor record(PaletteColor color) const {
        return records.at(static_cast<std::size_t>(color));
    }
    /// The same for the number of a PaletteColor.
    [[nodiscard]] Q_INVOKABLE QColor record(int color) const {
        return record(static_cast<PaletteColor>(color));
    }
    /// The same theme for a desktop that asks for high contrast.
    [[nodiscard]] ThemeColors withHighContrast() const;
};

/// The theme for `scheme`. Lives as long as the program.
[[nodiscard]] const ThemeColors& themeColors(ColorScheme scheme);

/// The record colour `color` in the theme for `scheme`.
[[nodiscard]] inline QColor colorValue(PaletteColor color, ColorScheme scheme) {
    return themeColors(scheme).record(color);
}

} // namespace vasker
