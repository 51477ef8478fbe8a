#include "platform/Preferences.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace vasker {

namespace {

// A few settings; what lies beyond in a damaged file is not searched for more.
constexpr qint64 maximumFileSize = 1'000'000;

QByteArray lineStart(const QString& key) {
    return key.toUtf8() + '=';
}

} // namespace

Preferences::Preferences(QString path, QObject* parent)
    : QObject(parent), m_path(std::move(path)), m_lines(readLines()) {
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &Preferences::reload);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &Preferences::reload);
    watch();
}

QString Preferences::userPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/vasker-open-map/preferences");
}

std::optional<QString> Preferences::text(const QString& key) const {
    const QByteArray start = lineStart(key);
    const auto line = std::find_if(m_lines.crbegin(), m_lines.crend(), [&](const QByteArray& each) {
        return each.startsWith(start);
    });
    if (line == m_lines.crend()) {
        return std::nullopt;
    }
    return QString::fromUtf8(line->mid(start.size()));
}

void Preferences::setText(const QString& key, const QString& value) {
    Q_ASSERT(!key.contains(u'=') && !key.contains(u'\n') && !value.contains(u'\n'));
    const std::optional<QString> before = text(key);
    const QByteArray start = lineStart(key);
    Lines lines = QFileInfo::exists(m_path) ? readLines() : m_lines;
    lines.removeIf([&](const QByteArray& line) { return line.startsWith(start); });
    lines.append(start + value.toUtf8());
    m_lines = lines;
    if (writeLines(lines)) {
        watch();
    }
    if (before != value) {
        Q_EMIT changed();
    }
}

Preferences::Lines Preferences::readLines() const {
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    Lines lines = file.read(maximumFileSize).split('\n');
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

bool Preferences::writeLines(const Lines& lines) const {
    const QFileInfo old(m_path);
    const bool wouldLoseLines = old.exists() && (!old.isReadable() || old.size() > maximumFileSize);
    if (wouldLoseLines || !QDir().mkpath(old.absolutePath())) {
        return false;
    }
    QSaveFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.write(lines.join('\n') + '\n') >= 0 &&
           file.commit();
}

void Preferences::reload() {
    watch();
    const Lines lines = readLines();
    if (lines != m_lines) {
        m_lines = lines;
        Q_EMIT changed();
    }
}

// A file that is replaced is a new file, and one that is yet to be made has no folder perhaps: so
// the nearest folder that exists is watched beside the file.
void Preferences::watch() {
    QString folder = QFileInfo(m_path).absolutePath();
    while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot()) {
        folder = QFileInfo(folder).absolutePath();
    }
    QStringList wanted{folder};
    if (QFileInfo(m_path).isFile()) {
        wanted.append(m_path);
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
