#pragma once
// What the user does on the map, as values. Places are item pixels; seconds count from anywhere.

#include "map/geometry/Camera.h"

#include <variant>
#include <vector>

namespace vasker {

struct PointerPress {
    ScreenPoint point;
    bool isPrimary;
    bool withControl;
};

struct PointerMove {
    ScreenPoint point;
    double seconds;
};

struct PointerRelease {
    bool isPrimary;
    double seconds;
};

struct DoubleClick {
    ScreenPoint point;
    bool isPrimary;
    bool withShift;
};

/// Something else has taken the pointer.
struct PointerLost {};

struct WheelTurn {
    ScreenPoint point;
    double angle; ///< eighths of a degree; a notch is 120
};

/// Two fingers on a touchpad, which moves smoothly by itself.
struct TouchpadScroll {
    ScreenPoint point;
    double pixels;
};

/// A gesture that the touchpad's driver has recognised.
struct TouchpadGesture {
    enum class Kind { begin, zoom, rotate, end };
    Kind kind;
    ScreenPoint point;
    double value; ///< of zoom: the change of the factor; of rotate: degrees clockwise
};

struct Touch {
    std::vector<ScreenPoint> fingers; ///< that are on the screen now
    double seconds;
};

/// Something else has taken the fingers.
struct TouchLost {};

struct KeyPress {
    int key; ///< Qt::Key
    bool withShift;
    bool isRepeated; ///< by the keyboard, of a key that is held
};

struct KeyRelease {
    int key; ///< Qt::Key
    bool isRepeated;
};

struct FocusLost {};

using MapEvent = std::variant<PointerPress,
                              PointerMove,
                              PointerRelease,
                              DoubleClick,
                              PointerLost,
                              WheelTurn,
                              TouchpadScroll,
                              TouchpadGesture,
                              Touch,
                              TouchLost,
                              KeyPress,
                              KeyRelease,
                              FocusLost>;

} // namespace vasker
