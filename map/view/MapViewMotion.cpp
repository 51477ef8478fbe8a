// How MapView moves: its margins, the moves that controls and keys ask for.

#include "map/view/MapView.h"

#include <QKeyEvent>

#include <array>

namespace vasker {

namespace {

constexpr double buttonZoomSeconds = 0.3;

struct KeyWish {
    NavigationAxis axis;
    int direction;
};

/// What a key asks for by itself and with Shift.
struct NavigationKey {
    int key;
    KeyWish plain;
    KeyWish shifted;
};

constexpr KeyWish nearer{NavigationAxis::nearer, 1};
constexpr KeyWish farther{NavigationAxis::nearer, -1};
// Plus and minus stand with Shift on some keyboards and without it on others.
constexpr std::array navigationKeys{
    NavigationKey{Qt::Key_Left, {NavigationAxis::right, -1}, {NavigationAxis::clockwise, -1}},
    NavigationKey{Qt::Key_Right, {NavigationAxis::right, 1}, {NavigationAxis::clockwise, 1}},
    NavigationKey{Qt::Key_Up, {NavigationAxis::down, -1}, {NavigationAxis::back, 1}},
    NavigationKey{Qt::Key_Down, {NavigationAxis::down, 1}, {NavigationAxis::back, -1}},
    NavigationKey{Qt::Key_Plus, nearer, nearer},
    NavigationKey{Qt::Key_Equal, nearer, nearer},
    NavigationKey{Qt::Key_Minus, farther, farther},
    NavigationKey{Qt::Key_Underscore, farther, farther},
};

const NavigationKey* navigationKey(int key) {
    for (const NavigationKey& each : navigationKeys) {
        if (each.key == key) {
            return &each;
        }
    }
    return nullptr;
}

} // namespace

void MapView::setCoveredBelow(double pixels) {
    if (pixels != m_coveredBelow) {
        m_coveredBelow = pixels;
        coverChanged();
        Q_EMIT coveredBelowChanged();
    }
}

void MapView::setCoveredRight(double pixels) {
    if (pixels != m_coveredRight) {
        m_coveredRight = pixels;
        coverChanged();
        Q_EMIT coveredRightChanged();
    }
}

void MapView::coverChanged() {
    m_motion.cancel();
    redraw();
    Q_EMIT viewChanged();
}

void MapView::setReducedMotion(bool reduced) {
    if (reduced != m_motion.isReduced()) {
        m_motion.setReduced(reduced);
        Q_EMIT reducedMotionChanged();
    }
}

void MapView::move(const Camera& camera) {
    m_movedTo = camera.pose();
    Q_EMIT moved(camera.pose());
}

void MapView::zoomIn() {
    const Camera camera = resolvedCamera();
    m_motion.zoom(camera, 2, camera.focus(), buttonZoomSeconds);
}

void MapView::zoomOut() {
    const Camera camera = resolvedCamera();
    m_motion.zoom(camera, 0.5, camera.focus(), buttonZoomSeconds);
}

void MapView::setUpright() {
    const Camera camera = resolvedCamera();
    if (!camera.isUpright()) {
        m_motion.level(camera, 0, 0);
    }
}

void MapView::settle() {
    const Camera camera = resolvedCamera();
    const CameraPose target = settled(camera.pose());
    if (target != camera.pose()) {
        m_motion.level(camera, target.bearing, target.pitch);
    }
}

void MapView::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if ((modifiers & ~Qt::ShiftModifier) != 0) {
        event->ignore();
        return;
    }
    if (const NavigationKey* key = navigationKey(event->key())) {
        const KeyWish wish = modifiers != 0 ? key->shifted : key->plain;
        m_motion.press(resolvedCamera(), wish.axis, wish.direction, event->isAutoRepeat());
        return;
    }
    switch (event->key()) {
    case Qt::Key_N:
        setUpright();
        break;
    case Qt::Key_Home:
        Q_EMIT overviewWanted();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event->isAutoRepeat()) {
            pick(resolvedCamera().focus(), touchReach);
        }
        break;
    case Qt::Key_Menu:
        offerMenu(resolvedCamera().focus(), touchReach);
        break;
    case Qt::Key_F10:
        if (event->modifiers() == Qt::ShiftModifier) {
            offerMenu(resolvedCamera().focus(), touchReach);
            break;
        }
        [[fallthrough]];
    default:
        event->ignore();
    }
}

void MapView::keyReleaseEvent(QKeyEvent* event) {
    const NavigationKey* key = navigationKey(event->key());
    if (key == nullptr) {
        event->ignore();
        return;
    }
    if (!event->isAutoRepeat()) { // Shift may have been released before
        m_motion.release(key->plain.axis, key->plain.direction);
        m_motion.release(key->shifted.axis, key->shifted.direction);
    }
}

void MapView::focusOutEvent(QFocusEvent* event) {
    m_motion.releaseAll();
    QQuickItem::focusOutEvent(event);
}

} // namespace vasker
