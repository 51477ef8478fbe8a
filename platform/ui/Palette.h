#pragma once
// The eleven colours that records are drawn in. Each has a deep value for light ground and a bright
// one for dark ground and imagery, at least 3:1 against everything it is drawn on.

#include <QColor>

namespace vasker {

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

/// Whether the desktop shows dark text on light ground or the reverse.
enum class ColorScheme { light, dark };

[[nodiscard]] QColor colorValue(PaletteColor color, ColorScheme scheme);

} // namespace vasker
