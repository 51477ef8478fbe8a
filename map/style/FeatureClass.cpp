#include "map/style/FeatureClass.h"

#include <algorithm>
#include <array>

namespace vasker {

namespace {

using enum FeatureClass;

struct KindClass {
    std::string_view name;
    FeatureClass featureClass;
};

// clang-format off
constexpr std::array landKinds{
    KindClass{"residential", urban}, KindClass{"industrial", urban}, KindClass{"commercial", urban}, KindClass{"retail", urban},
    KindClass{"garages", urban}, KindClass{"railway", urban}, KindClass{"brownfield", urban}, KindClass{"landfill", urban},
    KindClass{"forest", green}, KindClass{"wood", green}, KindClass{"park", green}, KindClass{"grass", green}, KindClass{"grassland", green},
    KindClass{"meadow", green}, KindClass{"scrub", green}, KindClass{"heath", green}, KindClass{"golf_course", green},
    KindClass{"recreation_ground", green}, KindClass{"village_green", green}, KindClass{"garden", green}, KindClass{"cemetery", green},
    KindClass{"grave_yard", green}, KindClass{"orchard", green}, KindClass{"vineyard", green}, KindClass{"nature_reserve", green},
    KindClass{"allotments", green}, KindClass{"glacier", ice},
};

constexpr std::array streetKinds{
    KindClass{"motorway", motorway}, KindClass{"motorway_link", motorway},
    KindClass{"trunk", primary}, KindClass{"trunk_link", primary}, KindClass{"primary", primary}, KindClass{"primary_link", primary},
    KindClass{"secondary", secondary}, KindClass{"secondary_link", secondary},
    KindClass{"tertiary", tertiary}, KindClass{"tertiary_link", tertiary}, KindClass{"runway", tertiary},
    KindClass{"unclassified", street}, KindClass{"residential", street}, KindClass{"living_street", street}, KindClass{"busway", street},
    KindClass{"road", street},
    KindClass{"service", service}, KindClass{"pedestrian", service}, KindClass{"taxiway", service},
    KindClass{"track", path}, KindClass{"path", path}, KindClass{"footway", path}, KindClass{"cycleway", path}, KindClass{"bridleway", path},
    KindClass{"steps", path},
    KindClass{"ferry", ferry},
    KindClass{"rail", rail}, KindClass{"narrow_gauge", rail}, KindClass{"light_rail", rail}, KindClass{"subway", rail}, KindClass{"tram", rail},
    KindClass{"funicular", rail}, KindClass{"monorail", rail},
};
// clang-format on

template <typename Kinds>
std::optional<FeatureClass> find(const Kinds& kinds, std::string_view name) noexcept {
    const auto found = std::ranges::find(kinds, name, &KindClass::name);
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
