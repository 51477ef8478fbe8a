#pragma once
// Brings the modules of our views into a program: included in one file of it.

#include <QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Vasker_PlatformPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_DetailPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_MapPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_AppPlugin)
