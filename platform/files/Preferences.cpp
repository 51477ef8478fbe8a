#include "platform/files/Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace vasker {

Preferences::Preferences(QString path, QObject* parent)
    : QObject(parent), m_file(std::move(path)),
      m_held(m_file.read().value_or(PreferenceFile::Lines())), m_lines(m_held) {
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
    const PreferenceFile::Lines before = m_lines;
    const auto written = m_file.set(key, value, m_lines);
    m_lines = written ? *written : PreferenceFile::with(m_lines, key, value);
    if (written) {
        m_held = m_lines;
        watch();
    }
    if (m_lines != before) {
        Q_EMIT changed();
    }
}

void Preferences::reload() {
    watch();
    const PreferenceFile::Lines held = m_file.read().value_or(PreferenceFile::Lines());
    // What could not be written counts until somebody else writes.
    if (std::exchange(m_held, held) != held && held != m_lines) {
        m_lines = held;
        Q_EMIT changed();
    }
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
