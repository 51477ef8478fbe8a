#include "app/SaveCommands.h"

#include "app/RecordFile.h"
#include "app/SavedName.h"
#include "platform/Appearance.h"

#include <QFileInfo>

namespace vasker {

SaveCommands::SaveCommands(QObject* parent) : QObject(parent), m_saving(Appearance::sessionBus()) {
    connect(&m_saving, &FileSaving::started, this, [this](const QString& path) {
        tell(tr("Saving %1…").arg(QFileInfo(path).fileName()));
    });
    connect(&m_saving, &FileSaving::ended, this, [this](bool saved, const QString& message) {
        tell(message, !saved);
    });
}

void SaveCommands::saveRecords(QQuickWindow* window) {
    forget();
    const QString release = QString::fromStdString(m_workspace->release().releaseID);
    const RecordFile file{m_workspace->filter()->records(),
                          {release.toStdString(),
                           m_workspace->digest().toStdString(),
                           m_workspace->query().toStdString(),
                           m_workspace->kind().toStdString()}};
    m_saving.save(tr("Save the records shown, as .csv or .geojson"),
                  savedName({release, m_workspace->query()}, QStringLiteral(".csv")),
                  window,
                  [file](const QString& path) { return file.write(path); });
}

void SaveCommands::tell(const QString& message, bool failed) {
    if (m_message != message || m_failed != failed) {
        m_message = message;
        m_failed = failed;
        Q_EMIT messageChanged();
    }
}

} // namespace vasker
