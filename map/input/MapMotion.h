#pragma once
// The current motion of the camera, advanced once a frame. Without one no frame is requested.

#include "map/geometry/CameraMotion.h"
#include "map/geometry/KeyNavigation.h"

#include <QAbstractAnimation>

#include <variant>

namespace vasker {

class MapMotion : public QAbstractAnimation {
    Q_OBJECT

  public:
    /// Whether every motion is at its end at once.
    void setReduced(bool reduced);

    /// Each takes the place of the motion before; `now` is where the camera is.
    void startInertia(const Camera& now, MapVelocity velocity);
    /// A zoom that still runs is continued: factors add up.
    void zoom(const Camera& now, double factor, ScreenPoint anchor, double duration);
    /// In degrees.
    void rotate(const Camera& now, double bearing, double pitch);

    /// A key went down: again and again for one that is held, then `isRepeated`.
    void press(const Camera& now, NavigationAxis axis, int direction, bool isRepeated);
    void release(NavigationAxis axis, int direction);
    void releaseAll();
    /// The camera stays where it is.
    void cancel();

    [[nodiscard]] int duration() const override { return -1; }

  Q_SIGNALS:
    void advanced(const vasker::Camera& camera);

  protected:
    void updateCurrentTime(int milliseconds) override;

  private:
    using Motion = std::variant<std::monostate, Inertia, SmoothZoom, SmoothRotation, KeyNavigation>;

    void begin(Motion motion);
    [[nodiscard]] double seconds() const { return currentTime() / 1000.0; }

    Motion m_motion;
    bool m_reduced = false;
};

} // namespace vasker
