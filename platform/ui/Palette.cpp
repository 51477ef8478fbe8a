#include "platform/ui/Palette.h"

#include <array>

namespace vasker {

namespace {

struct Shades {
    QRgb light;
    QRgb dark;
};

constexpr std::array<Shades, paletteSize> shades{{
    {0xFF176DEE, 0xFF72AFFD}, // blue
    {0xFF401CA8, 0xFF827FFF}, // indigo
    {0xFF118499, 0xFF4FE1F5}, // teal
    {0xFF9833A6, 0xFFCC79C0}, // purple
    {0xFF653817, 0xFFB38C71}, // brown
    {0xFFAC3700, 0xFFFF9023}, // orange
    {0xFFCC1C46, 0xFFFD504B}, // red
    {0xFF267028, 0xFFA3E88F}, // green
    {0xFF018C6D, 0xFF22C29C}, // mint
    {0xFF967907, 0xFFF4D24A}, // yellow
    {0xFF50565F, 0xFFC0C4CA}, // gray
}};

} // namespace

QColor colorValue(PaletteColor color, ColorScheme scheme) {
    const Shades& shade = shades.at(static_cast<std::size_t>(color));
    return QColor::fromRgb(scheme == ColorScheme::dark ? shade.dark : shade.light);
}

} // namespace vasker
