#pragma once
// Small discs with a casing.

#include "map/layers/Rgb.h"

#include <QColor>

#include <vector>

namespace vasker {

struct Dot {
    float x, y; ///< the centre, in item pixels
    Rgb color;
};

struct DotLayer {
    std::vector<Dot> dots;  ///< in drawing order
    double radius = 1;      ///< logical pixels
    double casingWidth = 0; ///< around the disc, logical pixels
    QColor casing;
};

} // namespace vasker
