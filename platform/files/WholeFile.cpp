#include "platform/files/WholeFile.h"

#include <QSaveFile>

namespace vasker {

QString writeWhole(const QString& path, const std::function<QString(QIODevice& file)>& write) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    if (QString fault = write(file); !fault.isEmpty()) {
        return fault;
    }
    return file.commit() ? QString() : file.errorString();
}

} // namespace vasker
