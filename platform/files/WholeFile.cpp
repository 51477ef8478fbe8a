#include "platform/files/WholeFile.h"

#include <QSaveFile>

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace vasker {

namespace {

/// What the disk says once it has to keep the file; nothing where it keeps it. QSaveFile does not
/// ask: some disks tell only then that they are full or broken.
QString faultOfDisk(QSaveFile& file) {
    if (!file.flush()) {
        return file.errorString();
    }
    const bool isKept = ::fdatasync(file.handle()) == 0 || errno == EINVAL; // it cannot be asked
    return isKept ? QString() : QString::fromStdString(std::generic_category().message(errno));
}

} // namespace

QString writeWhole(const QString& path, const std::function<QString(QIODevice& file)>& write) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    if (QString fault = write(file); !fault.isEmpty()) {
        return fault;
    }
    if (QString fault = faultOfDisk(file); !fault.isEmpty()) {
        return fault;
    }
    return file.commit() ? QString() : file.errorString();
}

} // namespace vasker
