#include "platform/ui/FocusVisibility.h"

#include <QEvent>
#include <QGuiApplication>
#include <QJSEngine>
#include <QQmlEngine>

namespace vasker {

FocusVisibility::FocusVisibility(QObject* parent) : QObject(parent) {
    qGuiApp->installEventFilter(this);
}

FocusVisibility* FocusVisibility::create(QQmlEngine*, QJSEngine*) {
    static auto* const shared = new FocusVisibility(qGuiApp);
    QJSEngine::setObjectOwnership(shared, QJSEngine::CppOwnership);
    return shared;
}

bool FocusVisibility::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        setVisible(true);
    } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        setVisible(false);
    }
    return QObject::eventFilter(watched, event);
}

void FocusVisibility::setVisible(bool visible) {
    if (m_visible != visible) {
        m_visible = visible;
        Q_EMIT visibleChanged();
    }
}

} // namespace vasker
