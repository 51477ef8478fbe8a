#pragma once
// How the map's style classifies a feature of a vector tile.

#include "map/tiles/VectorTile.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vasker {

enum class FeatureClass : std::uint8_t {
    urban,
    green,
    ice,
    ocean,
    lake,
    building,
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
inline constexpr std::size_t featureClasses = 19;

/// The class of a feature of the source layer of that name (of the Shortbread schema); nothing
/// where the style draws no such feature.
[[nodiscard]] std::optional<FeatureClass> featureClass(std::string_view sourceLayer,
                                                       const VectorFeature& feature) noexcept;

} // namespace vasker
