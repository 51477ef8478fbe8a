#include "map/style/StyleLayer.h"

#include <algorithm>

namespace vasker {

namespace {

using Theme = MapTheme;
using enum FeatureClass;
using enum StyleLayer::Kind;

constexpr double open = 99; ///< a zoom that no map reaches
constexpr double roadCasing = 0.7;

constexpr WidthStops times(double factor, WidthStops stops) {
    for (WidthStop& stop : stops) {
        stop.width *= factor;
    }
    return stops;
}

constexpr WidthStops constant(double width) {
    return {{{0, width}, {0, width}, {0, width}, {0, width}, {0, width}}};
}

// clang-format off
constexpr WidthStops coastWidths{{{3, 0.5}, {6, 0.8}, {10, 0.9}, {13, 1}, {16, 1.2}}};
constexpr WidthStops serviceWidths{{{13, 0.5}, {14.5, 1.2}, {15, 1.6}, {16, 2.6}, {18, 6}}};
constexpr WidthStops streetWidths{{{11, 0.5}, {12.7, 1.3}, {15, 3.4}, {16, 5}, {18, 10}}};
constexpr WidthStops tertiaryWidths{{{6, 0.5}, {9.5, 1.3}, {13, 2.4}, {15, 4.2}, {18, 12}}};
constexpr WidthStops secondaryWidths{{{5, 0.5}, {8.3, 1.3}, {13, 2.8}, {15, 4.8}, {18, 13}}};
constexpr WidthStops primaryWidths{{{3, 0.5}, {6.7, 1.3}, {13, 3.2}, {15, 5.4}, {18, 14}}};
constexpr WidthStops motorwayWidths{{{3, 0.7}, {5.7, 1.3}, {13, 3.6}, {15, 6}, {18, 15}}};

constexpr std::array<StyleLayer, 35> layers{{
    {"urban", urban, fill, 4, open, &Theme::urban},
    {"green", green, fill, 7, open, &Theme::green},
    {"ice", ice, fill, 0, open, &Theme::ice},
    {"ocean", ocean, fill, 0, open, &Theme::water},
    {"coast", ocean, outline, 0, open, &Theme::coast, coastWidths},
    {"river", river, line, 2, open, &Theme::river, {{{3, 0.5}, {7, 0.9}, {10, 1.6}, {13, 2}, {16, 3}}}},
    {"stream", stream, line, 11, open, &Theme::river, {{{11, 0.6}, {13, 0.8}, {14, 1}, {16, 1.6}, {18, 2}}}},
    {"lake", lake, fill, 1, open, &Theme::water},
    {"lake-shore", lake, outline, 1, open, &Theme::coast, times(0.9, coastWidths)},

    {"building", building, fill, 14, open, &Theme::building},
    {"building-outline", building, outline, 14, open, &Theme::roadCasing, times(0.6, coastWidths)},

    {"ferry", ferry, line, 5, open, &Theme::coast, {{{5, 0.8}, {10, 1}, {14, 1}, {16, 1.2}, {18, 1.5}}}, 0, {4, 4}},
    {"path", path, line, 13.5, open, &Theme::thinRoad, {{{13.5, 0.6}, {15, 0.9}, {17, 1.2}, {18, 1.6}, {19, 2}}}, 0, {3, 2}},
    {"rail", rail, line, 6, open, &Theme::rail, {{{6, 0.7}, {8, 0.8}, {13, 1}, {16, 1.3}, {18, 1.6}}}, 0, {4, 3}},

    // A road is thin, without a casing, until it is wide enough for one.
    {"service-casing", service, line, 14.5, open, &Theme::roadCasing, serviceWidths, roadCasing},
    {"street-casing", street, line, 12.7, open, &Theme::roadCasing, streetWidths, roadCasing},
    {"tertiary-casing", tertiary, line, 9.5, open, &Theme::roadCasing, tertiaryWidths, roadCasing},
    {"secondary-casing", secondary, line, 8.3, open, &Theme::roadCasing, secondaryWidths, roadCasing},
    {"primary-casing", primary, line, 6.7, open, &Theme::roadCasing, primaryWidths, roadCasing},
    {"motorway-casing", motorway, line, 5.7, open, &Theme::roadCasing, motorwayWidths, roadCasing},
    {"service-thin", service, line, 13, 14.5, &Theme::thinRoad, serviceWidths},
    {"service", service, line, 14.5, open, &Theme::minorRoad, serviceWidths},
    {"street-thin", street, line, 11, 12.7, &Theme::thinRoad, streetWidths},
    {"street", street, line, 12.7, open, &Theme::minorRoad, streetWidths},
    {"tertiary-thin", tertiary, line, 6, 9.5, &Theme::thinRoad, tertiaryWidths},
    {"tertiary", tertiary, line, 9.5, open, &Theme::minorRoad, tertiaryWidths},
    {"secondary-thin", secondary, line, 5, 8.3, &Theme::thinRoad, secondaryWidths},
    {"secondary", secondary, line, 8.3, open, &Theme::minorRoad, secondaryWidths},
    {"primary-thin", primary, line, 3, 6.7, &Theme::thinRoad, primaryWidths},
    {"primary", primary, line, 6.7, open, &Theme::mainRoad, primaryWidths},
    {"motorway-thin", motorway, line, 3, 5.7, &Theme::thinRoad, motorwayWidths},
    {"motorway", motorway, line, 5.7, open, &Theme::mainRoad, motorwayWidths},

    {"region-border", region, line, 2, open, &Theme::regionBorder, {{{3, 0.7}, {5, 1}, {10, 1.2}, {13, 1.4}, {16, 1.6}}}, 0, {5, 3}, true},
    {"country-halo", country, halo, 0, open, &Theme::countryHalo, constant(3.6)},
    {"country-border", country, line, 0, open, &Theme::countryBorder, {{{2, 0.8}, {4, 1.3}, {10, 1.5}, {13, 1.7}, {16, 2}}}, 0, {}, true},
}};
// clang-format on
constexpr std::size_t firstWater = 3;
constexpr std::size_t waters = 6;
static_assert(layers[firstWater].id == "ocean");
static_assert(layers[firstWater + waters - 1].id == "lake-shore");

} // namespace

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

std::span<const StyleLayer> styleLayers() noexcept {
    return layers;
}

std::span<const StyleLayer> waterLayers() noexcept {
    return std::span(layers).subspan(firstWater, waters);
}

} // namespace vasker
