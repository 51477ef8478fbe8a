#pragma once
// The map's style: what is drawn of a vector tile, as an ordered list of layers.
//
// Zooms are those of the screen, fractions included, so that what is drawn grows steadily while a
// raster tile is stretched, and a tile drawn from its ancestor's data looks as its own would.

#include "map/style/FeatureClass.h"
#include "map/style/MapTheme.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace vasker {

/// A role in the theme.
using ColorRole = QColor MapTheme::*;

/// A width in logical pixels at a zoom.
struct WidthStop {
    double zoom;
    double width;
};

/// Linear between the stops, constant before the first and after the last.
using WidthStops = std::array<WidthStop, 5>;

[[nodiscard]] double widthAt(const WidthStops& stops, double zoom) noexcept;

/// In logical pixels; a gap of 0 is a solid line.
struct DashPattern {
    double dash = 0;
    double gap = 0;
};

struct StyleLayer {
    enum class Kind : std::uint8_t {
        fill,    ///< of polygons
        outline, ///< of polygons, without the edges along which the data were cut to their tile
        line,
        halo, ///< of lines, as one path: where lines meet it is no darker
    };

    std::string_view id;
    FeatureClass features;
    Kind kind;
    double firstZoom;
    double lastZoom; ///< the layer ends before it
    ColorRole color;
    WidthStops widths{};   ///< of outlines, lines and halos
    double casing = 0;     ///< added to the width on either side, in logical pixels
    DashPattern dashes{};  ///< of lines
    bool isBorder = false; ///< of lines: drawn at its exact width, with flat ends
};

inline constexpr double tunnelOpacity = 0.45; ///< of lines under ground
inline constexpr double linkWidth = 0.7;      ///< of a ramp, in widths of its road
inline constexpr DashPattern disputedDashes{2, 2};

/// In drawing order, the lowest first.
[[nodiscard]] std::span<const StyleLayer> styleLayers() noexcept;

/// Those of seas, lakes and rivers: what is drawn over enlarged imagery.
[[nodiscard]] std::span<const StyleLayer> waterLayers() noexcept;

} // namespace vasker
