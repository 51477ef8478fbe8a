#include "platform/WindowKeys.h"

#include <QKeyEvent>
#include <QQuickItem>

#include <algorithm>
#include <array>

namespace vasker {

namespace {

struct WindowKey {
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
    void (WindowKeys::*requested)() = nullptr;
    bool opensSomething = false; ///< in this window
};

const std::array windowKeys{
    WindowKey{Qt::Key_F1, Qt::NoModifier, &WindowKeys::helpRequested, true},
    WindowKey{Qt::Key_Question, Qt::ControlModifier, &WindowKeys::shortcutsRequested, true},
    WindowKey{Qt::Key_F10, Qt::NoModifier, &WindowKeys::menuRequested, true},
    WindowKey{Qt::Key_F11, Qt::NoModifier, &WindowKeys::fullScreenRequested, false},
    WindowKey{Qt::Key_N, Qt::ControlModifier, &WindowKeys::newRequested, false},
    WindowKey{Qt::Key_W, Qt::ControlModifier, &WindowKeys::closeRequested, false},
    WindowKey{Qt::Key_Q, Qt::ControlModifier, &WindowKeys::quitRequested, false}};

} // namespace

void WindowKeys::setWindow(QQuickWindow* window) {
    m_window = window;
    window->installEventFilter(this);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && readsAText()) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && handle(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool WindowKeys::readsAText() const {
    const QQuickItem* const item = m_window->activeFocusItem();
    return item != nullptr && item->property("readOnly").toBool();
}

bool WindowKeys::handle(const QKeyEvent& key) {
    const auto found = std::ranges::find_if(windowKeys, [&key](const WindowKey& each) {
        // On many keyboards a question mark takes Shift.
        const Qt::KeyboardModifiers held =
            key.key() == Qt::Key_Question ? key.modifiers() & ~Qt::ShiftModifier : key.modifiers();
        return each.key == key.key() && each.modifiers == held;
    });
    if (found == windowKeys.end()) {
        return false;
    }
    if (key.isAutoRepeat()) {
        return true;
    }
    QObject* const over = popup();
    const bool isMenu = over != nullptr && over->inherits("QQuickMenu");
    if (isMenu) {
        QMetaObject::invokeMethod(over, "close");
    }
    const bool isHeard =
        over == nullptr || (isMenu && found->requested != &WindowKeys::menuRequested);
    if (isHeard || !found->opensSomething) {
        Q_EMIT(this->*found->requested)();
    }
    return true;
}

QObject* WindowKeys::popup() const {
    for (QQuickItem* item = m_window->activeFocusItem(); item != nullptr;
         item = item->parentItem()) {
        if (item->parent() != nullptr && item->parent()->inherits("QQuickPopup")) {
            return item->parent();
        }
    }
    return nullptr;
}

} // namespace vasker
