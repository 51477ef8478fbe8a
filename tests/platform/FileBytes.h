#pragma once
// What a file holds.

#include <QByteArray>
#include <QFile>
#include <QString>

namespace vasker {

/// Empty where the file cannot be read.
[[nodiscard]] inline QByteArray fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace vasker
