#pragma once
// What pointer, fingers, wheel and keys mean on the map: events in, commands out. A state machine
// without a window and without a clock.

#include "map/input/Gestures.h"
#include "map/input/MapCommand.h"
#include "map/input/MapEvent.h"

#include <cstdint>
#include <optional>

namespace vasker {

/// How near in time and place two taps are one double tap.
struct DoubleTap {
    double seconds = 0.4;
    double pixels = 30;
};

class MapInput {
  public:
    explicit MapInput(DoubleTap doubleTap) : m_doubleTap(doubleTap) {}

    /// The commands for `event`, to be carried out in order; `camera` is the present one. Nothing
    /// for a key that means nothing here.
    [[nodiscard]] std::optional<MapCommands> handle(const MapEvent& event, const Camera& camera);
    /// Whether the last Pick hit a record.
    void setPickHit(bool isHit) noexcept;

    /// What the pointer is dragging; nothing: no button is down, or it may yet be a click.
    [[nodiscard]] std::optional<DragKind> drag() const noexcept;
    /// Whether a button is down: nothing is hovered meanwhile.
    [[nodiscard]] bool isPressed() const noexcept { return m_drag.has_value(); }

  private:
    struct Tap {
        ScreenPoint point;
        double seconds;
        bool isHit = false;
    };

    MapCommands on(const PointerPress& press, const Camera& camera);
    MapCommands on(const PointerMove& move, const Camera& camera);
    MapCommands on(const PointerRelease& release, const Camera& camera);
    MapCommands on(const DoubleClick& click, const Camera& camera);
    MapCommands on(const PointerLost&, const Camera& camera);
    MapCommands on(const WheelTurn& turn, const Camera& camera);
    MapCommands on(const TouchpadScroll& scroll, const Camera& camera);
    MapCommands on(const TouchpadGesture& gesture, const Camera& camera);
    MapCommands on(const Touch& touch, const Camera& camera);
    MapCommands on(const TouchLost&, const Camera& camera);
    MapCommands on(const FocusLost&, const Camera& camera);
    std::optional<MapCommands> onKey(const KeyPress& press, const Camera& camera);
    static std::optional<MapCommands> onKey(const KeyRelease& release);

    MapCommands dragTo(ScreenPoint point, double seconds, const Camera& camera);
    MapCommands tap(ScreenPoint point, double seconds);

    DoubleTap m_doubleTap;
    std::optional<Drag> m_drag; ///< of the pointer, or of one finger
    DragTrail m_trail;          ///< of m_drag
    std::optional<Pinch> m_pinch;
    std::size_t m_fingers = 0;
    std::optional<Tap> m_lastTap;
    bool m_isTapPick = false; ///< the last Pick came of a tap
    bool m_lastClickHit = false;
};

} // namespace vasker
