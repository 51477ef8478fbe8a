#include "app/OpenMapApp.h"
#include "platform/AccessibleIds.h"
#include "platform/Locale.h"
#include "platform/Memory.h"
#include "platform/ui/Fonts.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Vasker_PlatformPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_MapPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_AppPlugin)

int main(int argc, char* argv[]) {
    vasker::returnFreedPictures();
    // Qt asks once, when it starts, whether there is a screen reader: one may be started later.
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("vasker-open-map"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vasker Beta"));
    vasker::installInterfaceFont();
    vasker::installTranslation(application, vasker::messagesLocale());

    const vasker::AccessibleIds identifiers;
    vasker::OpenMapApp windows(vasker::Bundle::ofApplication(),
                               vasker::TextLocale::fromEnvironment(),
                               vasker::Preferences::userPath(),
                               vasker::OpenMapApp::userCachePath());
    windows.openWindow();
    return QGuiApplication::exec();
}
