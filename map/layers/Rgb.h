#pragma once
// An opaque colour in three bytes, for arrays.

#include <QColor>

#include <array>
#include <cstdint>

namespace vasker {

/// Red, green, blue.
using Rgb = std::array<std::uint8_t, 3>;

[[nodiscard]] inline Rgb rgbOf(const QColor& color) {
    return {static_cast<std::uint8_t>(color.red()),
            static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

[[nodiscard]] inline QColor colorOf(const Rgb& rgb) {
    return {rgb[0], rgb[1], rgb[2]};
}

} // namespace vasker
