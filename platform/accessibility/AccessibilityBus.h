#pragma once
// Names on the accessibility bus that Qt's bridge, and what stands in for it, go by.

#include <QString>

namespace vasker {

/// The connection of Qt's bridge, by its name within this program.
inline const QString bridgeConnection = QStringLiteral("a11y");
/// The path below which controls stand, by their numbers.
inline const QString controlTree = QStringLiteral("/org/a11y/atspi/accessible");
inline const QString actionInterface = QStringLiteral("org.a11y.atspi.Action");
inline const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace vasker
