#pragma once
// A picture of the map as a file: PNG in pixels; PDF and SVG with lines, areas and text, and the
// basemap as an image within.

#include "app/saving/MapPicture.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QString>

class QIODevice;

namespace vasker {

struct PictureFile {
    Q_DECLARE_TR_FUNCTIONS(vasker::PictureFile)

  public:
    MapPicture picture;

    /// Writes the picture at `path`, whole or not at all: as PNG, PDF or SVG, by the end of the
    /// name. Returns what went wrong, or nothing. Any thread.
    [[nodiscard]] QString write(const QString& path) const;
    /// Writes it into `file` as the one page of a PDF: as large as `page` has room for, in its
    /// middle. Returns what went wrong, or nothing.
    [[nodiscard]] QString writePage(QIODevice& file, const QPageLayout& page) const;

  private:
    [[nodiscard]] QString writePng(QIODevice& file) const;
    [[nodiscard]] QString writePdf(QIODevice& file) const;
    [[nodiscard]] QString writeSvg(QIODevice& file) const;
};

} // namespace vasker
