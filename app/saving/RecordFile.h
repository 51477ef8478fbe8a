#pragma once
// The records that a list shows as a file for other programs.

#include "data/export/ExportHeader.h"
#include "map/records/RecordSet.h"

#include <QCoreApplication>
#include <QString>

namespace vasker {

struct RecordFile {
    Q_DECLARE_TR_FUNCTIONS(vasker::RecordFile)

  public:
    RecordSet records; ///< not empty of a release
    ExportHeader header;

    /// Writes the records in their order at `path`, whole or not at all: as CSV or GeoJSON, by the
    /// end of the name. Returns what went wrong, or nothing. Any thread.
    [[nodiscard]] QString write(const QString& path) const;
};

} // namespace vasker
