#pragma once
// Where the map looks. A CameraPosition is what the workspace stores and any window can show; a
// Camera is that wish resolved for a viewport of a given size.

#include "map/geometry/MapRect.h"
#include "map/geometry/Projection.h"

#include <variant>

namespace vasker {

/// A centre and a span, in degrees.
struct CoordinateRegion {
    Coordinate center;
    double latitudeDelta;
    double longitudeDelta;
    friend bool operator==(const CoordinateRegion&, const CoordinateRegion&) = default;
};

/// All of the region or of the rectangle is shown, whatever the window's shape.
using CameraPosition = std::variant<CoordinateRegion, MapRect>;

/// What the map shows first, and what "Canada" returns to.
inline constexpr CoordinateRegion canadaOverview{{54.0, -112.0}, 20.0, 40.0};

} // namespace vasker
