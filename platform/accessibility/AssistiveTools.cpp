#include "platform/accessibility/AssistiveTools.h"

#include <QCoreApplication>
#include <QJSEngine>
#include <QQmlEngine>

namespace vasker {

AssistiveTools::AssistiveTools(QObject* parent) : QObject(parent) {}

AssistiveTools& AssistiveTools::shared() {
    static auto* const shared = new AssistiveTools(QCoreApplication::instance());
    return *shared;
}

AssistiveTools* AssistiveTools::create(QQmlEngine*, QJSEngine*) {
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void AssistiveTools::notice() {
    if (!m_present) {
        m_present = true;
        Q_EMIT presentChanged();
    }
}

} // namespace vasker
