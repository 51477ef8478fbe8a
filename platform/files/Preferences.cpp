#include "platform/files/Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace vasker {

Preferences::Preferences(QString path, QObject* parent)
    : QObject(parent), m_file(std::move(path)), m_writer(m_file), m_stored(stored()),
      m_lines(m_stored) {
    connect(&m_writer, &PreferenceWriter::ended, this, &Preferences::forgetWritten);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &Preferences::reload);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &Preferences::reload);
    watch();
}

QString Preferences::userPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/vasker-open-map/preferences");
}

std::optional<QString> Preferences::text(const QString& key) const {
    return PreferenceFile::value(m_lines, key);
}

void Preferences::setText(const QString& key, const QString& value) {
    Q_ASSERT(!key.contains(u'=') && !key.contains(u'\n') && !value.contains(u'\n'));
    PreferenceFile::Values chosen = m_chosen;
    chosen.insert(key, value);
    m_writer.write(key, value);
    hold(m_stored, chosen);
}

void Preferences::reload() {
    watch();
    const PreferenceFile::Lines now = stored();
    if (now != m_stored) {
        // What could not be written counts until somebody else writes.
        hold(now, m_writer.isBusy() ? m_chosen : PreferenceFile::Values());
    }
}

void Preferences::forgetWritten(const PreferenceFile::Values& written) {
    watch();
    PreferenceFile::Values chosen = m_chosen;
    for (auto value = written.cbegin(); value != written.cend(); ++value) {
        // What was chosen since is not written yet.
        if (chosen.value(value.key()) == *value) {
            chosen.remove(value.key());
        }
    }
    hold(stored(), chosen);
}

void Preferences::hold(const PreferenceFile::Lines& stored, const PreferenceFile::Values& chosen) {
    m_stored = stored;
    m_chosen = chosen;
    const PreferenceFile::Lines lines = PreferenceFile::with(stored, chosen);
    if (std::exchange(m_lines, lines) != lines) {
        Q_EMIT changed();
    }
}

PreferenceFile::Lines Preferences::stored() const {
    return m_file.read().value_or(PreferenceFile::Lines());
}

// A file that is replaced is a new file, and one that is yet to be made has no folder perhaps: so
// the nearest folder that exists is watched beside the file.
void Preferences::watch() {
    QString folder = QFileInfo(m_file.path()).absolutePath();
    while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot()) {
        folder = QFileInfo(folder).absolutePath();
    }
    QStringList wanted{folder};
    if (QFileInfo(m_file.path()).isFile()) {
        wanted.append(m_file.path());
    }
    for (const QString& old : m_watcher.files() + m_watcher.directories()) {
        if (!wanted.removeOne(old)) {
            m_watcher.removePath(old);
        }
    }
    if (!wanted.isEmpty()) {
        m_watcher.addPaths(wanted);
    }
}

} // namespace vasker
