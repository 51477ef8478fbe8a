#pragma once
// What of a tile is drawn, in which colours, from which zoom and how wide. The map is paper and the
// records are ink: every colour here stays pale, and the record colours stand at least 3:1 against
// each ground.
//
// Zooms are those of the screen, fractions included: what is drawn grows steadily while a tile is
// stretched, and a tile that is drawn from its ancestor's data looks as its own would.

#include "map/style/TilePicture.h"
#include "map/tiles/VectorTile.h"

#include <QColor>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vasker {

/// The zoom, with fractions, whose tiles are seen at their own scale where the request's picture
/// is.
[[nodiscard]] double zoomOnScreen(const TileRequest& request) noexcept;

/// The colours of one dress, by role.
struct BasemapColors {
    QColor water;
    QColor coast;
    QColor land;
    QColor urban;
    QColor green; ///< woods and parks: hardly other than land
    QColor ice;
    QColor building;
    QColor river;
    QColor mainRoad;
    QColor minorRoad;
    QColor roadEdge;
    QColor thinRoad; ///< where a road is too narrow for edges
    QColor rail;
    QColor regionBorder;
    QColor countryBorder;
    QColor countryHalo;
};

/// The dress of a look; of hybrid what is drawn over imagery, of satellite (nothing is drawn over
/// it) the dark one. Roles that a look does not draw are transparent.
[[nodiscard]] const BasemapColors& basemapColors(BasemapTheme look);

/// The role of a colour.
using BasemapRole = QColor BasemapColors::*;

/// A width in logical pixels at a zoom.
struct WidthStop {
    double zoom;
    double width;
};

/// Straight between the stops, level before the first and after the last.
using WidthStops = std::array<WidthStop, 5>;

[[nodiscard]] double widthAt(const WidthStops& stops, double zoom) noexcept;

/// Dashes in logical pixels; a gap of 0 is a whole line.
struct DashPattern {
    double dash = 0;
    double gap = 0;
};

inline constexpr double never = 99; ///< a zoom that no map reaches

/// How the lines of one class are drawn. Classes stand in drawing order, the first lowest.
struct LineStyle {
    double firstZoom;
    BasemapRole color;
    BasemapRole thinColor; ///< below edgeZoom
    double edgeZoom;       ///< from here on with edges, 0.7 px a side; never: without
    DashPattern dashes;
    WidthStops widths;
};

enum class LineClass : std::uint8_t {
    river,
    stream,
    ferry,
    path,
    rail,
    service,
    street,
    tertiary,
    secondary,
    primary,
    motorway,
    region,
    country
};
inline constexpr std::size_t lineClasses = 13;

inline constexpr double roadEdgeWidth = 0.7;    ///< a side
inline constexpr double countryHaloWidth = 3.6; ///< in all
inline constexpr double tunnelOpacity = 0.45;   ///< of roads and rails under ground
inline constexpr double linkWidth = 0.7;        ///< of a ramp, in widths of its road
inline constexpr DashPattern disputedDashes{2, 2};

[[nodiscard]] const LineStyle& lineStyle(LineClass lineClass) noexcept;

/// The class of a line in the layer of that name; nothing where it is not drawn at all.
[[nodiscard]] std::optional<LineClass> lineClassOf(std::string_view layer,
                                                   const VectorFeature& feature);

/// How the areas of some kinds are filled. The table is in drawing order.
struct AreaStyle {
    std::string_view layer;
    std::span<const std::string_view> kinds; ///< empty: all that no style before it names
    double firstZoom;
    BasemapRole color;
    BasemapRole outline;  ///< null: none
    double outlineFactor; ///< of the coast's width
    bool aboveRivers;     ///< drawn after them
};

[[nodiscard]] std::span<const AreaStyle> areaStyles() noexcept;
/// The place in areaStyles() of an area in the layer of that name; nothing: not drawn.
[[nodiscard]] std::optional<std::size_t> areaStyleOf(std::string_view layer,
                                                     std::string_view kind) noexcept;

/// Of the coast, in logical pixels.
[[nodiscard]] double coastWidthAt(double zoom) noexcept;

} // namespace vasker
