#include "platform/ui/theme/ThemeColors.h"

namespace vasker {

namespace {

constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb black = 0xFF000000;
constexpr QRgb lightShadow = 0xFF0F141A;
constexpr QRgb lightScrim = 0xFF14181D;

QColor translucent(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor withAlpha(QRgb color, int alpha) {
    return {qRed(color), qGreen(color), qBlue(color), alpha};
}

// Adds the colours that follow from others in every theme.
ThemeColors completed(ThemeColors colors) {
    colors.hover = translucent(colors.text, 0.06);
    colors.pressed = translucent(colors.text, 0.11);
    colors.thumb = translucent(colors.text3, 0.45);
    colors.strip = translucent(colors.surface, 0.94);
    return colors;
}

ThemeColors lightTheme() {
    ThemeColors colors;
    colors.window = 0xFFF7F7F5;
    colors.surface = white;
    colors.sheet = 0xFFF1F1EE;
    colors.card = white;
    colors.control = white;
    colors.raised = white;
    colors.line = 0xFFE1E1DD;
    colors.controlLine = 0xFFC9CAC7;
    colors.text = 0xFF1A1D21;
    colors.text2 = 0xFF565C65;
    colors.text3 = 0xFF7B828B;
    colors.accent = 0xFF1A5FD0;
    colors.onAccent = white;
    colors.selected = 0xFFE4EDFB;
    colors.scrim = translucent(lightScrim, 0.28);
    colors.sideScrim = translucent(lightScrim, 0.14);
    colors.records = {0xFF176DEE,
                      0xFF401CA8,
                      0xFF118499,
                      0xFF9833A6,
                      0xFF653817,
                      0xFFAC3700,
                      0xFFCC1C46,
                      0xFF267028,
                      0xFF018C6D,
                      0xFF967907,
                      0xFF50565F};
    colors.highContrastRecords = {0xFF0F5BD0,
                                  0xFF401CA8,
                                  0xFF0A6678,
                                  0xFF86278F,
                                  0xFF653817,
                                  0xFF9C3200,
                                  0xFFB8163D,
                                  0xFF1F6121,
                                  0xFF006B53,
                                  0xFF6E5900,
                                  0xFF42474F};
    colors.elevations = {Elevation{1, 2, withAlpha(lightShadow, 41), withAlpha(lightShadow, 26)},
                         Elevation{8, 24, withAlpha(lightShadow, 46), withAlpha(lightShadow, 36)},
                         Elevation{20, 56, withAlpha(lightShadow, 71), withAlpha(lightShadow, 41)}};
    return completed(colors);
}

ThemeColors darkTheme() {
    ThemeColors colors;
    colors.window = 0xFF181B1F;
    colors.surface = 0xFF1D2125;
    colors.sheet = 0xFF16191C;
    colors.card = 0xFF23282D;
    colors.control = 0xFF262B30;
    colors.raised = 0xFF30363C;
    colors.line = 0xFF2C3136;
    colors.controlLine = 0xFF454C54;
    colors.text = 0xFFECEEF0;
    colors.text2 = 0xFFA9B0B8;
    colors.text3 = 0xFF7F8790;
    colors.accent = 0xFF84B8FF;
    colors.onAccent = 0xFF0E1318;
    colors.selected = 0xFF2A3A50;
    colors.scrim = translucent(black, 0.5);
    colors.sideScrim = translucent(black, 0.24);
    colors.records = {0xFF72AFFD,
                      0xFF827FFF,
                      0xFF4FE1F5,
                      0xFFCC79C0,
                      0xFFB38C71,
                      0xFFFF9023,
                      0xFFFD504B,
                      0xFFA3E88F,
                      0xFF22C29C,
                      0xFFF4D24A,
                      0xFFC0C4CA};
    colors.highContrastRecords = {0xFF72AFFD,
                                  0xFF9A98FF,
                                  0xFF4FE1F5,
                                  0xFFDB8FD0,
                                  0xFFC7A086,
                                  0xFFFF9023,
                                  0xFFFF7E79,
                                  0xFFA3E88F,
                                  0xFF22C29C,
                                  0xFFF4D24A,
                                  0xFFC0C4CA};
    colors.elevations = {Elevation{1, 3, withAlpha(black, 128), withAlpha(white, 18)},
                         Elevation{10, 28, withAlpha(black, 140), withAlpha(white, 23)},
                         Elevation{24, 64, withAlpha(black, 153), withAlpha(white, 23)}};
    return completed(colors);
}

} // namespace

const ThemeColors& themeColors(ColorScheme scheme) {
    static const ThemeColors light = lightTheme();
    static const ThemeColors dark = darkTheme();
    return scheme == ColorScheme::dark ? dark : light;
}

ThemeColors ThemeColors::withHighContrast() const {
    ThemeColors colors = *this;
    colors.text2 = colors.text;
    colors.line = colors.text3;
    colors.controlLine = colors.text3;
    colors.strip = colors.surface;
    colors.records = highContrastRecords;
    return colors;
}

} // namespace vasker
