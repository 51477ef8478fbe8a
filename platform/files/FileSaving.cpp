#include "platform/files/FileSaving.h"

#include "platform/Background.h"
#include "platform/files/SaveQuestion.h"

#include <system_error>

namespace vasker {

void FileSaving::save(const QString& title,
                      const QString& name,
                      QQuickWindow* window,
                      const Write& write) {
    SaveQuestion::ask(
        m_bus, title, name, window, this, [this, write](auto outcome, const QUrl& place) {
            if (outcome == SaveQuestion::Outcome::unavailable) {
                fail(tr("this desktop has no dialog to ask where."));
            } else if (outcome == SaveQuestion::Outcome::chosen) {
                saveAt(place, write);
            }
        });
}

void FileSaving::saveAt(const QUrl& place, const Write& write) {
    if (!place.isLocalFile()) {
        fail(tr("that place is not on this computer."));
        return;
    }
    const QString path = place.toLocalFile();
    Q_EMIT started(path);
    try {
        runInBackground(
            this,
            [write, path](const std::stop_token&) { return write(path); },
            [this, path](const QString& fault) {
                if (fault.isEmpty()) {
                    Q_EMIT ended(true, tr("Saved to %1").arg(path));
                } else {
                    fail(fault);
                }
            },
            AtExit::finish);
    } catch (const std::system_error& error) {
        fail(QString::fromStdString(error.code().message()));
    }
}

void FileSaving::fail(const QString& fault) {
    Q_EMIT ended(false, tr("The file could not be saved: %1").arg(fault));
}

} // namespace vasker
