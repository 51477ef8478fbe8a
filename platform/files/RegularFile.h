#pragma once
// Reads small files in folders that others can write to.

#include <QByteArray>
#include <QString>

#include <optional>

namespace vasker {

/// The bytes of the regular file at `path`. Nothing where there is none, where it cannot be read,
/// is longer than `limit` bytes or is anything else, such as a FIFO, which is never waited for.
[[nodiscard]] std::optional<QByteArray> readRegularFile(const QString& path, qint64 limit);

} // namespace vasker
