#include "platform/WindowKeys.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace vasker {

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
    void (WindowKeys::*wanted)() = key.key() == Qt::Key_N   ? &WindowKeys::newWanted
                                   : key.key() == Qt::Key_W ? &WindowKeys::closeWanted
                                   : key.key() == Qt::Key_Q ? &WindowKeys::quitWanted
                                                            : nullptr;
    if (key.modifiers() != Qt::ControlModifier || wanted == nullptr) {
        return false;
    }
    if (!key.isAutoRepeat()) {
        Q_EMIT(this->*wanted)();
    }
    return true;
}

} // namespace vasker
