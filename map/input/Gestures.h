#pragma once
// What gestures of pointer and fingers do to the camera. Plain values.

#include "map/geometry/Camera.h"

#include <cstdint>

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

enum class DragKind : std::uint8_t {
    pan,    ///< what is under the pointer stays there
    rotate, ///< across rotates the camera, upwards tilts it, about its centre
};

/// A pointer that is pressed on the map: a click, or a drag once it has left its place.
class Drag {
  public:
    /// `threshold` in pixels; 0: never a click.
    Drag(DragKind kind, ScreenPoint pressed, double threshold = dragThreshold) noexcept
        : m_kind(kind), m_pressed(pressed), m_last(pressed), m_threshold(threshold) {}

    /// The camera after the pointer moved to `point`.
    [[nodiscard]] Camera moved(const Camera& camera, ScreenPoint point) noexcept;
    [[nodiscard]] DragKind kind() const noexcept { return m_kind; }
    [[nodiscard]] bool isClick() const noexcept { return !m_isDragging; }
    [[nodiscard]] ScreenPoint pressed() const noexcept { return m_pressed; }

  private:
    DragKind m_kind;
    ScreenPoint m_pressed;
    ScreenPoint m_last;
    double m_threshold;
    bool m_isDragging = false;
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
