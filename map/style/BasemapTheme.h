#pragma once
// The appearances of the map.

#include <QString>

#include <cstddef>
#include <cstdint>

namespace vasker {

enum class BasemapTheme : std::uint8_t {
    light,
    dark,
    satellite,
    hybrid,
    // The same in high contrast, in the same order.
    lightHighContrast,
    darkHighContrast,
    satelliteHighContrast,
    hybridHighContrast
};

inline constexpr std::size_t basemapThemeCount = 8;

/// Whether what vector tiles hold is drawn everywhere, be it over imagery.
[[nodiscard]] constexpr bool showsVectorTiles(BasemapTheme theme) noexcept {
    return theme != BasemapTheme::satellite && theme != BasemapTheme::satelliteHighContrast;
}

/// Whether the basemap of `theme` is imagery.
[[nodiscard]] constexpr bool showsImagery(BasemapTheme theme) noexcept {
    return !showsVectorTiles(theme) || theme == BasemapTheme::hybrid ||
           theme == BasemapTheme::hybridHighContrast;
}

/// The theme for the stored choice of a basemap: "satellite" and "hybrid", compared exactly, are
/// imagery; every other value is the drawn map, in the appearance of the desktop.
[[nodiscard]] BasemapTheme
basemapTheme(const QString& basemap, bool dark, bool highContrast = false) noexcept;

/// The theme of what is drawn where imagery is missing; of a drawn map, itself.
[[nodiscard]] BasemapTheme withoutImagery(BasemapTheme theme) noexcept;

} // namespace vasker
