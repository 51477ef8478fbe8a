#include "app/saving/RecordFile.h"

#include "data/export/CsvExport.h"
#include "data/export/GeoJsonExport.h"
#include "platform/files/WholeFile.h"

#include <QIODevice>

namespace vasker {

namespace {

using Export = decltype(&exportCsv);

/// Null where the name says nothing of the format.
Export exportFor(const QString& path) {
    const auto endsIn = [&](const char* ending) {
        return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    };
    if (endsIn(".csv")) {
        return exportCsv;
    }
    return endsIn(".geojson") || endsIn(".json") ? exportGeoJson : nullptr;
}

} // namespace

QString RecordFile::write(const QString& path) const {
    const Export exportRecords = exportFor(path);
    if (exportRecords == nullptr) {
        return tr("its name has to end in .csv or .geojson.");
    }
    return writeWhole(path, [&](QIODevice& file) {
        const auto outcome = exportRecords(records.loaded->index.release(),
                                           *records.filtered,
                                           header,
                                           [&file](std::string_view piece) {
                                               const auto size = static_cast<qint64>(piece.size());
                                               return file.write(piece.data(), size) == size;
                                           });
        switch (outcome) {
        case ExportOutcome::stopped:
            return file.errorString();
        case ExportOutcome::tooLarge:
            return tr("it would be larger than %1 MiB.").arg(maximumExportBytes >> 20U);
        case ExportOutcome::written:
            break;
        }
        return QString();
    });
}

} // namespace vasker
