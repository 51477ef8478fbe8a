#include "map/style/FeatureClass.h"

#include <algorithm>
#include <array>

namespace vasker {

namespace {

using enum FeatureClass;

struct Kind {
    std::string_view name;
    FeatureClass featureClass;
};

// clang-format off
constexpr std::array landKinds{
    Kind{"residential", urban}, Kind{"industrial", urban}, Kind{"commercial", urban}, Kind{"retail", urban},
    Kind{"garages", urban}, Kind{"railway", urban}, Kind{"brownfield", urban}, Kind{"landfill", urban},
    Kind{"forest", green}, Kind{"wood", green}, Kind{"park", green}, Kind{"grass", green}, Kind{"grassland", green},
    Kind{"meadow", green}, Kind{"scrub", green}, Kind{"heath", green}, Kind{"golf_course", green},
    Kind{"recreation_ground", green}, Kind{"village_green", green}, Kind{"garden", green}, Kind{"cemetery", green},
    Kind{"grave_yard", green}, Kind{"orchard", green}, Kind{"vineyard", green}, Kind{"nature_reserve", green},
    Kind{"allotments", green}, Kind{"glacier", ice},
};

constexpr std::array streetKinds{
    Kind{"motorway", motorway}, Kind{"motorway_link", motorway},
    Kind{"trunk", primary}, Kind{"trunk_link", primary}, Kind{"primary", primary}, Kind{"primary_link", primary},
    Kind{"secondary", secondary}, Kind{"secondary_link", secondary},
    Kind{"tertiary", tertiary}, Kind{"tertiary_link", tertiary}, Kind{"runway", tertiary},
    Kind{"unclassified", street}, Kind{"residential", street}, Kind{"living_street", street}, Kind{"busway", street},
    Kind{"road", street},
    Kind{"service", service}, Kind{"pedestrian", service}, Kind{"taxiway", service},
    Kind{"track", path}, Kind{"path", path}, Kind{"footway", path}, Kind{"cycleway", path}, Kind{"bridleway", path},
    Kind{"steps", path},
    Kind{"ferry", ferry},
    Kind{"rail", rail}, Kind{"narrow_gauge", rail}, Kind{"light_rail", rail}, Kind{"subway", rail}, Kind{"tram", rail},
    Kind{"funicular", rail}, Kind{"monorail", rail},
};
// clang-format on

template <typename Kinds>
std::optional<FeatureClass> find(const Kinds& kinds, std::string_view name) noexcept {
    const auto found = std::ranges::find(kinds, name, &Kind::name);
    return found == kinds.end() ? std::nullopt : std::optional(found->featureClass);
}

bool isSmall(std::string_view waterway) noexcept {
    return waterway == "stream" || waterway == "ditch" || waterway == "drain";
}

std::optional<FeatureClass> areaClass(std::string_view sourceLayer,
                                      std::string_view kind) noexcept {
    if (sourceLayer == "land") {
        return find(landKinds, kind);
    }
    if (sourceLayer == "water_polygons") {
        return kind == "glacier" ? ice : lake;
    }
    if (sourceLayer == "ocean") {
        return ocean;
    }
    return sourceLayer == "buildings" ? std::optional(building) : std::nullopt;
}

std::optional<FeatureClass> lineClass(std::string_view sourceLayer,
                                      const VectorFeature& feature) noexcept {
    if (sourceLayer == "streets") {
        return feature.rail ? std::optional(rail) : find(streetKinds, feature.kind);
    }
    if (sourceLayer == "water_lines") {
        return isSmall(feature.kind) ? stream : river;
    }
    // Borders at sea only cross the water.
    if (sourceLayer == "boundaries" && feature.adminLevel <= 4 && !feature.maritime) {
        return feature.adminLevel <= 2 ? country : region;
    }
    return sourceLayer == "ferries" ? std::optional(ferry) : std::nullopt;
}

} // namespace

std::optional<FeatureClass> featureClass(std::string_view sourceLayer,
                                         const VectorFeature& feature) noexcept {
    switch (feature.geometry) {
    case VectorFeature::Geometry::polygon:
        return areaClass(sourceLayer, feature.kind);
    case VectorFeature::Geometry::lines:
        return lineClass(sourceLayer, feature);
    case VectorFeature::Geometry::points:
        break;
    }
    return std::nullopt;
}

} // namespace vasker
