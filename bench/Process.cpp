#include "bench/Process.h"

#include <QFile>

#include <stdexcept>

namespace vasker {

double proportionalMemory() {
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("Pss:")) {
                return line.mid(4).trimmed().split(' ').front().toDouble() * 1024 / 1e6;
            }
        }
    }
    throw std::runtime_error("the kernel tells no proportional memory");
}

void writeFile(const QString& path, const std::string& text) {
    const auto size = static_cast<qint64>(text.size());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), size) != size) {
        throw std::runtime_error("cannot write " + path.toStdString());
    }
}

} // namespace vasker
