#include "app/OpenMapApp.h"
#include "app/QmlModules.h"
#include "map/scene/Graphics.h"
#include "platform/Appearance.h"
#include "platform/Background.h"
#include "platform/DesktopActivation.h"
#include "platform/Locale.h"
#include "platform/accessibility/AccessibleIds.h"
#include "platform/ui/KeyRepeat.h"
#include "platform/ui/theme/Fonts.h"

#include <QGuiApplication>
#include <QIcon>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

using vasker::DesktopActivation;

/// How long a program that the bus has started waits for the request behind that.
constexpr std::chrono::seconds idleTime(10);

/// Set by the bus's service file: a request for a window waits there, so that none is opened
/// before.
bool startedByBus() {
    constexpr auto variable = "VASKER_OPEN_MAP_STARTED_BY_BUS";
    const bool started = qEnvironmentVariableIsSet(variable);
    qunsetenv(variable);
    return started;
}

/// What Qt 6.4 may say of its own timer when an animation ends as a window closes; nothing is
/// wrong.
constexpr QLatin1String animationNoise("QUnifiedTimer::stopAnimationDriver: driver is not running");

/// Where Qt 6.8 says so whenever a tool asks after a control that is gone by now.
constexpr QLatin1String accessibilityNoise("qt.accessibility.atspi");

void print(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text != animationNoise && QLatin1String(context.category) != accessibilityNoise) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
    }
}

/// Where there is no display, Qt says so at length and aborts.
void expectDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        std::fputs("vasker-open-map: there is no display for a window\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
    if (!QLatin1String(context.category).startsWith(QLatin1String("qt.qpa"))) {
        print(type, context, text);
    }
}

int run(int argc, char** argv) {
    const bool serves = startedByBus();
    const auto token = vasker::LaunchToken::fromEnvironment();
    qInstallMessageHandler(expectDisplay);
    QGuiApplication application(argc, argv);
    qInstallMessageHandler(print);
    QGuiApplication::setApplicationName(QStringLiteral("vasker-open-map"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vasker Beta"));
    QGuiApplication::setDesktopFileName(QStringLiteral(VASKER_DESKTOP_NAME));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/application.svg")));

    DesktopActivation activation(vasker::Appearance::sessionBus(),
                                 QStringLiteral(VASKER_DESKTOP_NAME));
    const bool isNeeded = serves
                              ? activation.claim()
                              : activation.start(token) != DesktopActivation::Outcome::handedOver;
    if (!isNeeded) {
        return 0;
    }
    vasker::chooseGraphics();
    vasker::installInterfaceFont();
    vasker::installTranslation(application, vasker::messagesLocale());

    const vasker::AccessibleIds identifiers;
    const vasker::KeyRepeat keyRepeat;
    vasker::OpenMapApp windows(vasker::Bundle::ofApplication(),
                               vasker::TextLocale::fromEnvironment(),
                               vasker::Preferences::userPath(),
                               vasker::OpenMapApp::userCachePath());
    QObject::connect(&activation,
                     &DesktopActivation::windowRequested,
                     &windows,
                     &vasker::OpenMapApp::openWindowInFront);
    // From the last window on, a request is for whoever comes next.
    QObject::connect(&application,
                     &QGuiApplication::lastWindowClosed,
                     &activation,
                     &DesktopActivation::withdraw);
    if (serves) {
        QTimer::singleShot(idleTime, &windows, [&] {
            if (!windows.hasWindows()) {
                QGuiApplication::quit();
            }
        });
    } else {
        windows.openWindowInFront(token);
    }
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    vasker::OpenMapApp::setUpProcess();
    const int status = run(argc, argv);
    // A read from a disk that is gone never returns; its thread must not keep the program.
    if (!vasker::finishBackgroundWork()) {
        std::_Exit(status);
    }
    return status;
}
