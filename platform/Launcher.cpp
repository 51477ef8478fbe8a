#include "platform/Launcher.h"

#include <QDesktopServices>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace vasker {

namespace {

/// The programs that Qt looks for whatever the desktop, and the user's own browser.
QStringList launchersOf(const QUrl& url) {
    QStringList names{QStringLiteral("xdg-open"),
                      QStringLiteral("google-chrome"),
                      QStringLiteral("firefox"),
                      QStringLiteral("opera")};
    if (!url.isLocalFile()) {
        names << qEnvironmentVariable("DEFAULT_BROWSER", qEnvironmentVariable("BROWSER"));
    }
    return names;
}

} // namespace

bool launch(const QUrl& url) {
    const QStringList names = launchersOf(url);
    return std::any_of(names.begin(),
                       names.end(),
                       [](const QString& name) {
                           return !QStandardPaths::findExecutable(name).isEmpty();
                       }) &&
           QDesktopServices::openUrl(url);
}

} // namespace vasker
