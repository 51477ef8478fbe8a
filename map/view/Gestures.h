#pragma once
// What the pointer asks of the camera. Plain values: tested without a window.

#include "map/geometry/Camera.h"

#include <optional>

namespace vasker {

/// A press that moves less than this, in logical pixels, is a click.
inline constexpr double dragThreshold = 4;

/// How much nearer one notch of a wheel, one double click and one pixel of a touchpad come.
[[nodiscard]] double wheelZoomFactor(double angleDelta) noexcept;
inline constexpr double doubleClickZoomFactor = 2;

/// A pointer that is pressed on the map: a click, or a drag once it has left its place.
class Drag {
  public:
    explicit Drag(ScreenPoint pressed) noexcept : m_pressed(pressed), m_last(pressed) {}

    /// The camera after the pointer moved to `point`; the ground stays under it.
    [[nodiscard]] Camera moved(const Camera& camera, ScreenPoint point) noexcept;
    [[nodiscard]] bool isClick() const noexcept { return !m_dragging; }
    [[nodiscard]] ScreenPoint pressed() const noexcept { return m_pressed; }

  private:
    ScreenPoint m_pressed;
    ScreenPoint m_last;
    bool m_dragging = false;
};

/// Two fingers on the map: the ground under them stays under them.
class Pinch {
  public:
    Pinch(ScreenPoint first, ScreenPoint second) noexcept : m_first(first), m_second(second) {}

    [[nodiscard]] Camera
    moved(const Camera& camera, ScreenPoint first, ScreenPoint second) noexcept;

  private:
    ScreenPoint m_first;
    ScreenPoint m_second;
};

} // namespace vasker
