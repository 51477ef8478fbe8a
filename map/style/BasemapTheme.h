#pragma once
// The four appearances of the map.

#include <QString>

#include <cstdint>

namespace vasker {

enum class BasemapTheme : std::uint8_t { light, dark, satellite, hybrid };

/// Whether the basemap of `theme` is imagery.
[[nodiscard]] constexpr bool showsImagery(BasemapTheme theme) noexcept {
    return theme == BasemapTheme::satellite || theme == BasemapTheme::hybrid;
}

/// The theme for the stored choice of a basemap: "satellite" and "hybrid", compared exactly, are
/// imagery; every other value is the drawn map, in the appearance of the desktop.
[[nodiscard]] BasemapTheme basemapTheme(const QString& basemap, bool dark) noexcept;

} // namespace vasker
