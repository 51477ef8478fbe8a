#include "bench/Stillness.h"

#include "platform/Appearance.h"

#include <QDBusVariant>

namespace vasker {

void stopMotion() {
    QMetaObject::invokeMethod(Appearance::create(nullptr, nullptr),
                              "apply",
                              Q_ARG(QString, QStringLiteral("org.freedesktop.appearance")),
                              Q_ARG(QString, QStringLiteral("reduced-motion")),
                              Q_ARG(QDBusVariant, QDBusVariant(1U)));
}

} // namespace vasker
