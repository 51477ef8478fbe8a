#pragma once
// Carries out what the user does on a map: moves its camera, at once or over time, and picks
// records.

#include "map/input/MapInput.h"
#include "map/input/MapMotion.h"

#include <QObject>
#include <Qt>

#include <functional>

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

    void setReducedMotion(bool reduced) { m_motion.setReduced(reduced); }
    /// Whether the camera is on its way by itself.
    [[nodiscard]] bool isMoving() const { return m_motion.state() == MapMotion::Running; }
    [[nodiscard]] const MapInput& input() const noexcept { return m_input; }
    /// Of the pointer, while a button is down.
    [[nodiscard]] Qt::CursorShape dragCursor() const noexcept;

    /// Picks the record within reach, or none; whether there is one. Set once.
    std::function<bool(const Pick&)> pick;

  Q_SIGNALS:
    void moved(const vasker::Camera& camera);
    void menuRequested(vasker::ScreenPoint point, double reach);
    void overviewRequested();
    void focusRequested();

  private:
    void carryOut(const MapCommand& command);

    std::function<Camera()> m_camera;
    MapInput m_input;
    MapMotion m_motion;
};

} // namespace vasker
