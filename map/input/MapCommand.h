#pragma once
// What the map is to do, as values.

#include "map/geometry/CameraMotion.h"
#include "map/geometry/KeyNavigation.h"

#include <variant>
#include <vector>

namespace vasker {

/// The camera stays where it is.
struct StopMotion {};

struct SetCamera {
    Camera camera;
};

/// The camera goes on, slower and slower.
struct StartInertia {
    MapVelocity velocity;
};

/// A zoom by `factor` about `anchor` that takes `seconds`.
struct StartZoom {
    double factor;
    ScreenPoint anchor;
    double seconds;
};

/// The camera rotates and tilts to these degrees.
struct StartRotation {
    double bearing;
    double pitch;
};

struct PressAxis {
    NavigationAxis axis;
    int direction;
    bool isRepeated;
};

struct ReleaseAxis {
    NavigationAxis axis;
    int direction;
};

struct ReleaseAllAxes {};

/// Picks the record within `reach` pixels of `point`, or none.
struct Pick {
    ScreenPoint point;
    double reach;
};

/// Opens the menu of the record within `reach` pixels of `point`; does nothing where there is none.
struct OpenMenu {
    ScreenPoint point;
    double reach;
};

struct ShowOverview {};

struct TakeFocus {};

using MapCommand = std::variant<StopMotion,
                                SetCamera,
                                StartInertia,
                                StartZoom,
                                StartRotation,
                                PressAxis,
                                ReleaseAxis,
                                ReleaseAllAxes,
                                Pick,
                                OpenMenu,
                                ShowOverview,
                                TakeFocus>;
using MapCommands = std::vector<MapCommand>;

} // namespace vasker
