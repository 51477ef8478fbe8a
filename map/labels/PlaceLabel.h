#pragma once
// The label of a place, a region or a water.

#include "map/geometry/Projection.h"

#include <QString>

#include <cstdint>

namespace vasker {

struct PlaceLabel {
    enum class Kind : std::uint8_t { country, region, capital, city, town, village, water };
    QString text;
    MapPoint point;
    Kind kind;
    double priority; ///< the smaller comes first where labels compete
    friend bool operator==(const PlaceLabel&, const PlaceLabel&) = default;
};

} // namespace vasker
