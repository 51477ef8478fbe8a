#pragma once
// What gestures of pointer and fingers do to the camera. Plain values.

#include "map/geometry/Camera.h"

namespace vasker {

/// A press that moves less than this, in logical pixels, is a click; a finger is less steady.
inline constexpr double dragThreshold = 4;
inline constexpr double touchDragThreshold = 10;

/// The factors by which a notch of a wheel, a distance on a touchpad and a double click zoom.
[[nodiscard]] double wheelZoomFactor(double angleDelta) noexcept;
[[nodiscard]] double touchpadZoomFactor(double pixels) noexcept;
inline constexpr double doubleClickZoomFactor = 2;

/// A bearing or a pitch that a gesture has left nearly at 0 is meant to be 0.
[[nodiscard]] CameraPose settled(const CameraPose& pose) noexcept;

/// A pointer that is pressed on the map: a click, or a drag once it has left its place.
class PanDrag {
  public:
    explicit PanDrag(ScreenPoint pressed, double threshold = dragThreshold) noexcept
        : m_pressed(pressed), m_last(pressed), m_threshold(threshold) {}

    /// The camera after the pointer moved to `point`; what was under it stays there.
    [[nodiscard]] Camera moved(const Camera& camera, ScreenPoint point) noexcept;
    [[nodiscard]] bool isClick() const noexcept { return !m_dragging; }
    [[nodiscard]] ScreenPoint pressed() const noexcept { return m_pressed; }

  private:
    ScreenPoint m_pressed;
    ScreenPoint m_last;
    double m_threshold; ///< pixels; 0: never a click
    bool m_dragging = false;
};

/// The second way to drag: across rotates the camera, upwards tilts it, about its centre.
class RotateDrag {
  public:
    explicit RotateDrag(ScreenPoint pressed) noexcept : m_pressed(pressed), m_last(pressed) {}

    [[nodiscard]] Camera moved(const Camera& camera, ScreenPoint point) noexcept;
    [[nodiscard]] bool isClick() const noexcept { return !m_rotating; }
    [[nodiscard]] ScreenPoint pressed() const noexcept { return m_pressed; }

  private:
    ScreenPoint m_pressed;
    ScreenPoint m_last;
    bool m_rotating = false;
};

/// Two fingers on the map: what is under them stays under them. The camera rotates with them only
/// once they have rotated by more than a few degrees, so that a plain zoom keeps its bearing.
class Pinch {
  public:
    Pinch(ScreenPoint first, ScreenPoint second) noexcept : m_first(first), m_second(second) {}

    [[nodiscard]] Camera
    moved(const Camera& camera, ScreenPoint first, ScreenPoint second) noexcept;

  private:
    /// How far the camera rotates when the fingers rotate by `degrees` clockwise.
    [[nodiscard]] double rotationFor(double degrees) noexcept;

    ScreenPoint m_first;
    ScreenPoint m_second;
    double m_twist = 0; ///< degrees that the fingers have rotated so far
    bool m_rotating = false;
};

} // namespace vasker
