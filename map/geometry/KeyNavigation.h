#pragma once
// The camera moved by keys: steadily while a key is held, one step for a short press, always with a
// soft stop. Several keys act at once.

#include "map/geometry/Camera.h"

#include <array>
#include <limits>

namespace vasker {

/// What a key moves.
enum class NavigationAxis {
    right, ///< over the map, to the right
    down,  ///< over the map, backwards
    nearer,
    clockwise,
    back ///< tilting back
};

/// The camera one step on; `direction` is 1 or -1.
[[nodiscard]] Camera stepped(const Camera& camera, NavigationAxis axis, int direction);

class KeyNavigation {
  public:
    /// At rest at first. All seconds count from here and never run backwards.
    explicit KeyNavigation(const Camera& camera) : m_start(camera) {}

    /// A key that moves along `axis` went down; `direction` is 1 or -1. A key of the other
    /// direction that is still held gives way.
    void press(NavigationAxis axis, int direction, double seconds);
    /// The key came up; one that has given way does nothing.
    void release(NavigationAxis axis, int direction, double seconds);
    void releaseAll(double seconds);

    [[nodiscard]] Camera cameraAt(double seconds) const;
    [[nodiscard]] bool isFinished(double seconds) const noexcept;

  private:
    static constexpr std::size_t axisCount = 5;
    static constexpr double never = std::numeric_limits<double>::infinity();

    /// The way along one axis since its key went down.
    struct Way {
        int direction = 0; ///< 0: none
        double pressed = 0;
        double released = never;
        double least = 0;   ///< how far it goes at least
        double counted = 0; ///< how much of it m_start has made already

        [[nodiscard]] double lengthAt(double seconds, double speed) const noexcept;
        /// From `released` on.
        [[nodiscard]] double rest(double speed) const noexcept;
    };

    [[nodiscard]] Way& way(NavigationAxis axis) { return m_ways[static_cast<std::size_t>(axis)]; }
    /// Makes the camera at `seconds` the start.
    void rebase(double seconds);

    Camera m_start;
    std::array<Way, axisCount> m_ways;
};

} // namespace vasker
