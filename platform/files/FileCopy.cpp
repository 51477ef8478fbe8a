#include "platform/files/FileCopy.h"

#include "platform/files/WholeFile.h"

#include <QFile>

#include <array>
#include <filesystem>

namespace vasker {

namespace {

bool areOneFile(const QString& one, const QString& other) {
    std::error_code unknown;
    return std::filesystem::equivalent(
        QFile::encodeName(one).toStdString(), QFile::encodeName(other).toStdString(), unknown);
}

} // namespace

QString copyWhole(const QString& source, const QString& target) {
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return from.errorString();
    }
    if (areOneFile(source, target)) {
        return {};
    }
    return writeWhole(target, [&](QIODevice& to) -> QString {
        std::array<char, 1 << 16> step{};
        for (;;) {
            const qint64 count = from.read(step.data(), step.size());
            if (count < 0) {
                return from.errorString();
            }
            if (count == 0) {
                return {};
            }
            if (to.write(step.data(), count) != count) {
                return to.errorString();
            }
        }
    });
}

} // namespace vasker
