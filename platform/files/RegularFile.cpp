#include "platform/files/RegularFile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace vasker {

std::optional<QByteArray> readRegularFile(const QString& path, qint64 limit) {
    // Without O_NONBLOCK, opening a FIFO waits for a writer.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open() has no other form
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    QFile file;
    struct stat status {};
    if (descriptor < 0 ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ||
        ::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    const QByteArray bytes = file.read(limit + 1);
    const bool isWhole = file.error() == QFileDevice::NoError && bytes.size() <= limit;
    return isWhole ? std::optional(bytes) : std::nullopt;
}

} // namespace vasker
