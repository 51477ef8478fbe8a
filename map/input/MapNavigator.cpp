#include "map/input/MapNavigator.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <chrono>
#include <utility>

namespace vasker {

namespace {

constexpr double buttonZoomSeconds = 0.3;

/// A camera that has not moved for so long is at rest.
constexpr std::chrono::milliseconds cameraRestTime{90};

DoubleTap doubleTapOfDesktop() {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    return {.seconds = hints.mouseDoubleClickInterval() / 1000.0,
            .pixels = static_cast<double>(hints.touchDoubleTapDistance())};
}

template <typename... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};

template <typename... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>; // clang 14 makes no such guide by itself

} // namespace

MapNavigator::MapNavigator(std::function<Camera()> camera)
    : m_camera(std::move(camera)), m_input(doubleTapOfDesktop()) {
    m_rest.setSingleShot(true);
    m_rest.setInterval(cameraRestTime);
    connect(&m_rest, &QTimer::timeout, this, &MapNavigator::rested);
    connect(&m_motion, &MapMotion::advanced, this, &MapNavigator::move);
}

bool MapNavigator::handle(const MapEvent& event) {
    const auto commands = m_input.handle(event, m_camera());
    if (!commands) {
        return false;
    }
    for (const MapCommand& command : *commands) {
        carryOut(command);
    }
    return true;
}

void MapNavigator::carryOut(const MapCommand& command) {
    std::visit(Overloaded{
                   [this](const StopMotion&) { m_motion.cancel(); },
                   [this](const SetCamera& set) { move(set.camera); },
                   [this](const StartInertia& start) {
                       m_motion.startInertia(m_camera(), start.velocity);
                   },
                   [this](const StartZoom& zoom) {
                       m_motion.zoom(m_camera(), zoom.factor, zoom.anchor, zoom.seconds);
                   },
                   [this](const StartRotation& rotation) {
                       const CameraPose pose = m_camera().pose();
                       if (pose.bearing != rotation.bearing || pose.pitch != rotation.pitch) {
                           m_motion.rotate(m_camera(), rotation.bearing, rotation.pitch);
                       }
                   },
                   [this](const PressAxis& press) {
                       m_motion.press(m_camera(), press.axis, press.direction, press.isRepeated);
                   },
                   [this](const ReleaseAxis& release) {
                       m_motion.release(release.axis, release.direction);
                   },
                   [this](const ReleaseAllAxes&) { m_motion.releaseAll(); },
                   [this](const Pick& request) { m_input.setPickHit(pick && pick(request)); },
                   [this](const OpenMenu& menu) { Q_EMIT menuRequested(menu.point, menu.reach); },
                   [this](const ShowOverview&) { Q_EMIT overviewRequested(); },
                   [this](const TakeFocus&) { Q_EMIT focusRequested(); },
               },
               command);
}

void MapNavigator::move(const Camera& camera) {
    m_movedTo = camera.pose();
    Q_EMIT moved(camera.pose());
}

void MapNavigator::follow(const CameraPosition& position) {
    if (m_movedTo && position == CameraPosition(*m_movedTo)) {
        m_rest.start();
    } else {
        m_rest.stop();
        stop();
    }
}

void MapNavigator::zoomBy(double factor) {
    const Camera camera = m_camera();
    m_motion.zoom(camera, factor, camera.focus(), buttonZoomSeconds);
}

void MapNavigator::resetNorth() {
    carryOut(StartRotation{0, 0});
}

} // namespace vasker
