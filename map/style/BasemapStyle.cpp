#include "map/style/BasemapStyle.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vasker {

namespace {

using Colors = BasemapColors;

QColor rgb(QRgb value) {
    return QColor::fromRgb(value);
}

QColor translucent(QRgb value, double opacity) {
    QColor color = rgb(value);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

BasemapColors lightColors() {
    return {.water = rgb(0xCBDFEA),
            .coast = rgb(0xA3C0D0),
            .land = rgb(0xF4F2EC),
            .urban = rgb(0xE5DFD5),
            .green = rgb(0xEBEEE2),
            .ice = rgb(0xFCFDFD),
            .building = rgb(0xE1DACF),
            .river = rgb(0xB3D0E0),
            .mainRoad = rgb(0xFFFFFF),
            .minorRoad = rgb(0xFBFAF7),
            .roadEdge = rgb(0xDDD6CA),
            .thinRoad = rgb(0xDDD6CA),
            .rail = rgb(0xCDC8BF),
            .regionBorder = rgb(0xB7AEBC),
            .countryBorder = rgb(0x8C8196),
            .countryHalo = translucent(0x8C8196, 0.16)};
}

BasemapColors darkColors() {
    return {.water = rgb(0x151E27),
            .coast = rgb(0x33454F),
            .land = rgb(0x262B30),
            .urban = rgb(0x33383E),
            .green = rgb(0x272E2F),
            .ice = rgb(0x353C43),
            .building = rgb(0x363B41),
            .river = rgb(0x1B2832),
            .mainRoad = rgb(0x41474E),
            .minorRoad = rgb(0x373D43),
            .roadEdge = rgb(0x1F2428),
            .thinRoad = rgb(0x3B4147),
            .rail = rgb(0x3A3F45),
            .regionBorder = rgb(0x56505E),
            .countryBorder = rgb(0x7E7689),
            .countryHalo = translucent(0x7E7689, 0.16)};
}

BasemapColors hybridColors() {
    BasemapColors colors;
    for (const BasemapRole role : {&Colors::water,
                                   &Colors::coast,
                                   &Colors::land,
                                   &Colors::urban,
                                   &Colors::green,
                                   &Colors::ice,
                                   &Colors::building,
                                   &Colors::river,
                                   &Colors::roadEdge,
                                   &Colors::rail}) {
        colors.*role = Qt::transparent;
    }
    for (const BasemapRole role : {&Colors::mainRoad, &Colors::minorRoad, &Colors::thinRoad}) {
        colors.*role = translucent(0xF5E3B0, 0.5);
    }
    colors.regionBorder = translucent(0xFFFFFF, 0.5);
    colors.countryBorder = rgb(0xFFFFFF);
    colors.countryHalo = translucent(0x0A1018, 0.35);
    return colors;
}

// clang-format off
constexpr std::array<LineStyle, lineClasses> lineStyles{{
    // from   colour                  thin                    edges  dashes   zoom and width
    {2,       &Colors::river,         &Colors::river,         never, {},      {{{3, 0.5}, {7, 0.9}, {10, 1.6}, {13, 2}, {16, 3}}}},             // river
    {11,      &Colors::river,         &Colors::river,         never, {},      {{{11, 0.6}, {13, 0.8}, {14, 1}, {16, 1.6}, {18, 2}}}},           // stream
    {5,       &Colors::coast,         &Colors::coast,         never, {4, 4},  {{{5, 0.8}, {10, 1}, {14, 1}, {16, 1.2}, {18, 1.5}}}},            // ferry
    {13.5,    &Colors::thinRoad,      &Colors::thinRoad,      never, {3, 2},  {{{13.5, 0.6}, {15, 0.9}, {17, 1.2}, {18, 1.6}, {19, 2}}}},       // path
    {6,       &Colors::rail,          &Colors::rail,          never, {4, 3},  {{{6, 0.7}, {8, 0.8}, {13, 1}, {16, 1.3}, {18, 1.6}}}},           // rail
    {13,      &Colors::minorRoad,     &Colors::thinRoad,      14.5,  {},      {{{13, 0.5}, {14.5, 1.2}, {15, 1.6}, {16, 2.6}, {18, 6}}}},       // service
    {11,      &Colors::minorRoad,     &Colors::thinRoad,      12.7,  {},      {{{11, 0.5}, {12.7, 1.3}, {15, 3.4}, {16, 5}, {18, 10}}}},        // street
    {6,       &Colors::minorRoad,     &Colors::thinRoad,      9.5,   {},      {{{6, 0.5}, {9.5, 1.3}, {13, 2.4}, {15, 4.2}, {18, 12}}}},        // tertiary
    {5,       &Colors::minorRoad,     &Colors::thinRoad,      8.3,   {},      {{{5, 0.5}, {8.3, 1.3}, {13, 2.8}, {15, 4.8}, {18, 13}}}},        // secondary
    {3,       &Colors::mainRoad,      &Colors::thinRoad,      6.7,   {},      {{{3, 0.5}, {6.7, 1.3}, {13, 3.2}, {15, 5.4}, {18, 14}}}},        // primary
    {3,       &Colors::mainRoad,      &Colors::thinRoad,      5.7,   {},      {{{3, 0.7}, {5.7, 1.3}, {13, 3.6}, {15, 6}, {18, 15}}}},          // motorway
    {2,       &Colors::regionBorder,  &Colors::regionBorder,  never, {5, 3},  {{{3, 0.7}, {5, 1}, {10, 1.2}, {13, 1.4}, {16, 1.6}}}},           // region
    {0,       &Colors::countryBorder, &Colors::countryBorder, never, {},      {{{2, 0.8}, {4, 1.3}, {10, 1.5}, {13, 1.7}, {16, 2}}}},           // country
}};

constexpr std::array<std::pair<std::string_view, LineClass>, 33> streetKinds{{
    {"motorway", LineClass::motorway},     {"trunk", LineClass::primary},
    {"primary", LineClass::primary},       {"secondary", LineClass::secondary},
    {"tertiary", LineClass::tertiary},     {"unclassified", LineClass::street},
    {"residential", LineClass::street},    {"living_street", LineClass::street},
    {"busway", LineClass::street},         {"road", LineClass::street},
    {"motorway_link", LineClass::motorway}, {"trunk_link", LineClass::primary},
    {"primary_link", LineClass::primary},  {"secondary_link", LineClass::secondary},
    {"tertiary_link", LineClass::tertiary}, {"pedestrian", LineClass::service},
    {"service", LineClass::service},       {"taxiway", LineClass::service},
    {"runway", LineClass::tertiary},       {"track", LineClass::path},
    {"path", LineClass::path},             {"footway", LineClass::path},
    {"cycleway", LineClass::path},         {"bridleway", LineClass::path},
    {"steps", LineClass::path},            {"ferry", LineClass::ferry},
    {"rail", LineClass::rail},             {"narrow_gauge", LineClass::rail},
    {"light_rail", LineClass::rail},       {"subway", LineClass::rail},
    {"tram", LineClass::rail},             {"funicular", LineClass::rail},
    {"monorail", LineClass::rail},
}};

constexpr std::array<std::string_view, 1> iceKinds{"glacier"};
constexpr std::array<std::string_view, 8> builtKinds{
    "residential", "industrial", "commercial", "retail",
    "garages", "railway", "brownfield", "landfill"};
constexpr std::array<std::string_view, 18> greenKinds{
    "forest", "wood", "park", "grass", "grassland", "meadow",
    "scrub", "heath", "golf_course", "recreation_ground", "village_green", "garden",
    "cemetery", "grave_yard", "orchard", "vineyard", "nature_reserve", "allotments"};
constexpr std::array<std::string_view, 0> anyKind{};

constexpr std::array<AreaStyle, 7> areas{{
    // layer            kinds        from  colour             outline            factor  above rivers
    {"land",            builtKinds,  4,    &Colors::urban,    nullptr,           0,      false},
    {"land",            greenKinds,  7,    &Colors::green,    nullptr,           0,      false},
    {"land",            iceKinds,    0,    &Colors::ice,      nullptr,           0,      false},
    {"water_polygons",  iceKinds,    0,    &Colors::ice,      nullptr,           0,      false},
    {"ocean",           anyKind,     0,    &Colors::water,    &Colors::coast,    1,      false},
    {"water_polygons",  anyKind,     1,    &Colors::water,    &Colors::coast,    0.9,    true},
    {"buildings",       anyKind,     14,   &Colors::building, &Colors::roadEdge, 0.6,    true},
}};
// clang-format on

constexpr WidthStops coastWidths{{{3, 0.5}, {6, 0.8}, {10, 0.9}, {13, 1}, {16, 1.2}}};

LineClass borderClassOf(const VectorFeature& feature) {
    return feature.adminLevel <= 2 ? LineClass::country : LineClass::region;
}

std::optional<LineClass> streetClassOf(std::string_view kind) {
    const auto* const found = std::find_if(streetKinds.begin(),
                                           streetKinds.end(),
                                           [kind](auto& entry) { return entry.first == kind; });
    return found == streetKinds.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

double zoomOnScreen(const TileRequest& request) noexcept {
    return std::log2(request.devicePixelsPerMapPoint / request.devicePixelsPerPixel * worldSize /
                     tilePixels);
}

const BasemapColors& basemapColors(BasemapTheme look) {
    static const BasemapColors light = lightColors();
    static const BasemapColors dark = darkColors();
    static const BasemapColors hybrid = hybridColors();
    switch (look) {
    case BasemapTheme::light:
        return light;
    case BasemapTheme::hybrid:
        return hybrid;
    case BasemapTheme::dark:
    case BasemapTheme::satellite:
        break;
    }
    return dark;
}

double widthAt(const WidthStops& stops, double zoom) noexcept {
    for (std::size_t i = 1; i < stops.size(); ++i) {
        const WidthStop& from = stops[i - 1];
        const WidthStop& to = stops[i];
        if (zoom < to.zoom) {
            const double part = std::max(0.0, (zoom - from.zoom) / (to.zoom - from.zoom));
            return from.width + part * (to.width - from.width);
        }
    }
    return stops.back().width;
}

const LineStyle& lineStyle(LineClass lineClass) noexcept {
    return lineStyles[static_cast<std::size_t>(lineClass)];
}

std::optional<LineClass> lineClassOf(std::string_view layer, const VectorFeature& feature) {
    if (layer == "streets") {
        return feature.rail ? LineClass::rail : streetClassOf(feature.kind);
    }
    if (layer == "ferries") {
        return LineClass::ferry;
    }
    if (layer == "water_lines") {
        const bool isSmall =
            feature.kind == "stream" || feature.kind == "ditch" || feature.kind == "drain";
        return isSmall ? LineClass::stream : LineClass::river;
    }
    // Borders at sea are left to the imagination: they only cross the water.
    if (layer == "boundaries" && feature.adminLevel <= 4 && !feature.maritime) {
        return borderClassOf(feature);
    }
    return std::nullopt;
}

std::span<const AreaStyle> areaStyles() noexcept {
    return areas;
}

std::optional<std::size_t> areaStyleOf(std::string_view layer, std::string_view kind) noexcept {
    for (std::size_t i = 0; i < areas.size(); ++i) {
        const AreaStyle& style = areas[i];
        const bool isNamed =
            style.kinds.empty() ||
            std::find(style.kinds.begin(), style.kinds.end(), kind) != style.kinds.end();
        if (style.layer == layer && isNamed) {
            return i;
        }
    }
    return std::nullopt;
}

double coastWidthAt(double zoom) noexcept {
    return widthAt(coastWidths, zoom);
}

} // namespace vasker
