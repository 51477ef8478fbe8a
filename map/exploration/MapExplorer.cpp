#include "map/exploration/MapExplorer.h"

#include "map/exploration/PlaceText.h"

#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace vasker {

namespace {

/// A map that has not moved for so long is where its user wants it.
constexpr std::chrono::milliseconds restTime{600};

/// A record so near to the centre is what the centre is at, in logical pixels.
constexpr double nearPixels = 24;

std::optional<ScreenDirection> directionOf(int key) {
    switch (key) {
    case Qt::Key_Up:
        return ScreenDirection::up;
    case Qt::Key_Right:
        return ScreenDirection::right;
    case Qt::Key_Down:
        return ScreenDirection::down;
    case Qt::Key_Left:
        return ScreenDirection::left;
    default:
        return std::nullopt;
    }
}

bool isPointer(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::Wheel || type == QEvent::TouchBegin;
}

} // namespace

MapExplorer::MapExplorer(QObject* parent) : QObject(parent) {
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    connect(&m_rest, &QTimer::timeout, this, &MapExplorer::tellCenter);
}

void MapExplorer::setMap(MapView* map) {
    m_map = map;
    map->installEventFilter(this);
    connect(map, &MapView::viewChanged, this, &MapExplorer::followView);
    connect(map, &MapView::recordsChanged, this, &MapExplorer::leave);
}

bool MapExplorer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && handleKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::FocusOut) {
        leave();
    }
    if (isPointer(event->type())) {
        m_isKeyMove = false;
    }
    return QObject::eventFilter(watched, event);
}

bool MapExplorer::handleKey(const QKeyEvent& key) {
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const auto direction = directionOf(key.key());
    const bool opens =
        key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space;
    if (direction && modifiers == Qt::ControlModifier) {
        go(*direction);
        return true;
    }
    if (key.key() == Qt::Key_R && (modifiers & ~Qt::ShiftModifier) == 0) {
        step(modifiers == Qt::ShiftModifier ? -1 : 1);
        return true;
    }
    if (opens && m_current && modifiers == Qt::NoModifier) {
        if (!key.isAutoRepeat()) {
            Q_EMIT picked(QString::fromStdString(m_map->records().asset(*m_current).id));
        }
        return true;
    }
    m_isKeyMove = true;
    return false;
}

void MapExplorer::go(ScreenDirection direction) {
    const Camera camera = m_map->resolvedCamera();
    const auto near = nearestTowards(direction, m_map->records(), camera);
    if (!near) {
        Q_EMIT spoken(tr("No record in this direction"));
        return;
    }
    leave();
    CameraPose pose = camera.pose();
    pose.center = near->place;
    m_isGoing = true;
    Q_EMIT moved(pose);
    m_isGoing = false;
    stand(*near);
}

void MapExplorer::step(int by) {
    if (m_tour.empty()) {
        m_tour = recordsInView(m_map->records(), m_map->resolvedCamera());
        const auto at = std::ranges::find(
            m_tour, m_current, [](const NearRecord& each) { return std::optional(each.asset); });
        // One before the first, unless it stands at one already.
        m_place = at != m_tour.end() ? static_cast<std::size_t>(at - m_tour.begin())
                  : by > 0           ? m_tour.size() - 1
                                     : 0;
    }
    if (m_tour.empty()) {
        Q_EMIT spoken(PlaceText::inView(0));
        return;
    }
    m_place = (m_place + (by > 0 ? 1 : m_tour.size() - 1)) % m_tour.size();
    stand(m_tour[m_place]);
}

void MapExplorer::stand(const NearRecord& near) {
    m_current = near.asset;
    const Camera camera = m_map->resolvedCamera();
    m_map->hover()->hold(near.asset, camera.worldToScreen(near.place), camera);
    Q_EMIT spoken(PlaceText::record(m_map->records().asset(near.asset), near));
}

void MapExplorer::leave() {
    m_tour.clear();
    if (m_current && m_map->hover()->record() == m_current) {
        m_map->hover()->clear();
    }
    m_current.reset();
}

void MapExplorer::followView() {
    if (m_isGoing) {
        return;
    }
    leave();
    if (m_isKeyMove) {
        m_rest.start();
    }
}

void MapExplorer::tellCenter() {
    if (!m_map->hasActiveFocus()) {
        return;
    }
    m_isKeyMove = false;
    const Camera camera = m_map->resolvedCamera();
    const auto inView = recordsInView(m_map->records(), camera);
    //: %1: where the centre of the map is, %2: how many records are in view
    Q_EMIT spoken(tr("%1, %2").arg(PlaceText::center(camera.center(), m_map->places()),
                                   PlaceText::inView(inView.size())));
    if (inView.empty()) {
        return;
    }
    const ScreenPoint seen = camera.worldToScreen(inView.front().place);
    const ScreenPoint center = camera.focus();
    if (std::hypot(seen.x - center.x, seen.y - center.y) <= nearPixels) {
        stand(inView.front());
    }
}

} // namespace vasker
