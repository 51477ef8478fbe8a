#pragma once
// Carries out what the user does on a map: moves its camera, at once or over time, and picks
// records.

#include "map/input/MapInput.h"
#include "map/input/MapMotion.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

namespace vasker {

class MapNavigator : public QObject {
    Q_OBJECT

  public:
    /// `camera` returns the present camera of the map.
    explicit MapNavigator(std::function<Camera()> camera);

    /// Whether the event means something to the map.
    bool handle(const MapEvent& event);
    /// Moves that a control asks for, over time.
    void zoomBy(double factor);
    void resetNorth();
    /// The camera stays where it is, or goes to its end at once.
    void stop() { m_motion.cancel(); }
    /// The camera of the map stands at `position` now. A position that moved() did not announce
    /// ends every motion.
    void follow(const CameraPosition& position);

    void setReducedMotion(bool reduced) { m_motion.setReduced(reduced); }
    /// Whether the camera is on its way by itself.
    [[nodiscard]] bool isMoving() const { return m_motion.state() == MapMotion::Running; }
    /// Whether the user has not moved the camera for a moment.
    [[nodiscard]] bool isResting() const { return !m_rest.isActive(); }
    [[nodiscard]] const MapInput& input() const noexcept { return m_input; }

    /// Picks the record within reach, or none; whether there is one. Set once.
    std::function<bool(const Pick&)> pick;

  Q_SIGNALS:
    void moved(const vasker::CameraPosition& camera);
    /// isResting() is true again.
    void rested();
    void menuRequested(vasker::ScreenPoint point, double reach);
    void overviewRequested();
    void focusRequested();

  private:
    void carryOut(const MapCommand& command);
    void move(const Camera& camera);

    std::function<Camera()> m_camera;
    MapInput m_input;
    MapMotion m_motion;
    std::optional<CameraPose> m_movedTo; ///< what moved() announced last
    QTimer m_rest;                       ///< runs while the user moves the camera
};

} // namespace vasker
