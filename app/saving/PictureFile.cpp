#include "app/saving/PictureFile.h"

#include "platform/files/WholeFile.h"

#include <QBuffer>
#include <QIODevice>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <array>
#include <utility>

namespace vasker {

namespace {

constexpr int dotsPerInch = 96; // a logical pixel is a dot
constexpr double pointsPerPixel = 72.0 / dotsPerInch;

} // namespace

QString PictureFile::write(const QString& path) const {
    using Writer = QString (PictureFile::*)(QIODevice&) const;
    const std::array<std::pair<const char*, Writer>, 3> writers{{{".png", &PictureFile::writePng},
                                                                 {".pdf", &PictureFile::writePdf},
                                                                 {".svg", &PictureFile::writeSvg}}};
    for (const auto& [ending, writer] : writers) {
        if (path.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) {
            // In memory first: what encodes a picture does not know why a device fails.
            QBuffer bytes;
            bytes.open(QIODevice::WriteOnly);
            if (QString fault = (this->*writer)(bytes); !fault.isEmpty()) {
                return fault;
            }
            return writeWhole(path, [&](QIODevice& file) {
                return file.write(bytes.data()) == bytes.size() ? QString() : file.errorString();
            });
        }
    }
    return tr("its name has to end in .png, .pdf or .svg.");
}

QString PictureFile::writePng(QIODevice& file) const {
    QImageWriter writer(&file, "png");
    return writer.write(picture.composed()) ? QString() : writer.errorString();
}

QString PictureFile::writePdf(QIODevice& file) const {
    const QPageSize size(
        picture.size() * pointsPerPixel, QPageSize::Point, QString(), QPageSize::ExactMatch);
    return writePage(file, QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
}

QString PictureFile::writePage(QIODevice& file, const QPageLayout& page) const {
    QPdfWriter writer(&file);
    writer.setCreator(QStringLiteral("Vasker Beta"));
    writer.setTitle(picture.title);
    writer.setResolution(dotsPerInch);
    writer.setPageLayout(page);
    QPainter painter;
    if (!painter.begin(&writer)) {
        return file.errorString();
    }
    const QSizeF size = picture.size();
    const QSizeF room = page.paintRect(QPageLayout::Point).size() / pointsPerPixel;
    const double scale = std::min(room.width() / size.width(), room.height() / size.height());
    painter.translate((room.width() - scale * size.width()) / 2,
                      (room.height() - scale * size.height()) / 2);
    painter.scale(scale, scale);
    picture.draw(painter);
    return painter.end() ? QString() : file.errorString();
}

QString PictureFile::writeSvg(QIODevice& file) const {
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setTitle(picture.title);
    generator.setDescription(picture.notes.join(u'\n'));
    generator.setResolution(dotsPerInch);
    generator.setSize(picture.size().toSize());
    generator.setViewBox(QRectF({}, picture.size()));
    QPainter painter;
    if (!painter.begin(&generator)) {
        return file.errorString();
    }
    picture.draw(painter);
    return painter.end() ? QString() : file.errorString();
}

} // namespace vasker
