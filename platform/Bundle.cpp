#include "platform/Bundle.h"

#include "platform/files/RegularFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace vasker {

namespace {

// A handful of values; a file beyond this is not bundle information.
constexpr qint64 maximumInformationSize = 1'000'000;

} // namespace

Bundle::Bundle(QString folder) : m_folder(std::move(folder)) {}

Bundle Bundle::ofApplication() {
    const QDir executables(QCoreApplication::applicationDirPath());
    const QString beside = executables.filePath(QStringLiteral("resources"));
    if (QFileInfo(beside).isDir()) {
        return Bundle(beside);
    }
    return Bundle(
        QDir::cleanPath(executables.filePath(QStringLiteral("../share/vasker-open-map"))));
}

std::optional<QString> Bundle::resource(const QString& name, const QString& extension) const {
    const QString path = QDir(m_folder).filePath(name + u'.' + extension);
    if (!QFileInfo::exists(path)) {
        return std::nullopt;
    }
    return path;
}

QJsonValue Bundle::information(const QString& key) const {
    const auto bytes = readRegularFile(
        QDir(m_folder).filePath(QStringLiteral("BundleInformation.json")), maximumInformationSize);
    return bytes ? QJsonDocument::fromJson(*bytes).object().value(key) : QJsonValue::Undefined;
}

} // namespace vasker
