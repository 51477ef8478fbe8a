#pragma once
// Motions of the camera: values that say where the camera is at a time. Seconds count from the
// beginning of each motion; whoever moves the camera otherwise drops the motion.

#include "map/geometry/Camera.h"

#include <vector>

namespace vasker {

/// Map points per second, to the east and to the south.
struct MapVelocity {
    double x = 0;
    double y = 0;
};

/// What a drag leaves behind: where the camera's centre has been in the last moments.
class DragTrail {
  public:
    /// The seconds may count from anywhere and never run backwards.
    void add(MapPoint center, double seconds);
    /// How fast the centre has moved in the 0.1 s before `seconds`; zero if the pointer rested.
    [[nodiscard]] MapVelocity velocityAt(double seconds) const;

  private:
    struct Sample {
        MapPoint center; ///< in the copy of the world that continues the drag
        double seconds;
    };
    std::vector<Sample> m_samples;
};

/// The camera goes on after a drag, slower and slower: the speed falls to 1/e every 0.325 s.
class Inertia {
  public:
    Inertia(const Camera& camera, MapVelocity velocity);

    [[nodiscard]] Camera cameraAt(double seconds) const;
    [[nodiscard]] bool isFinished(double seconds) const noexcept { return seconds >= m_duration; }

  private:
    Camera m_start;
    MapVelocity m_velocity; ///< at the start
    double m_duration = 0;  ///< 0: too slow for inertia
};

/// The camera comes nearer or goes farther, with the place under an anchor kept there: fast at
/// first, then slower.
class SmoothZoom {
  public:
    /// A factor that is not positive does not move the camera.
    SmoothZoom(const Camera& camera, double factor, ScreenPoint anchor, double duration);
    /// What is still to come of this zoom and `factor` on top of it, from `seconds` on, about
    /// another place.
    [[nodiscard]] SmoothZoom
    continued(double seconds, double factor, ScreenPoint anchor, double duration) const;

    [[nodiscard]] Camera cameraAt(double seconds) const;
    [[nodiscard]] bool isFinished(double seconds) const noexcept { return seconds >= m_duration; }

  private:
    Camera m_start;
    double m_factor;
    ScreenPoint m_anchor;
    double m_duration;
};

/// The camera rotates the short way to a bearing and tilts to a pitch, about its centre.
class SmoothRotation {
  public:
    /// In degrees.
    SmoothRotation(const Camera& camera, double bearing, double pitch);

    [[nodiscard]] Camera cameraAt(double seconds) const;
    [[nodiscard]] static bool isFinished(double seconds) noexcept { return seconds >= duration; }

  private:
    static constexpr double duration = 0.25;

    Camera m_start;
    double m_bearing;
    double m_pitch;
    double m_rotation; ///< degrees from the start's bearing, (-180, 180]
};

} // namespace vasker
